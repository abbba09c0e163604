#include "tests/pages/PageFixture.h"
#include "tests/pages/PageNames.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"

#include <QLabel>
#include <QTabWidget>
#include <QTranslator>

#include <memory>

// The macro does not work inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(quayside);
}

namespace {

struct Row
{
    std::string page;
    std::string language;
};

std::vector<Row> rows()
{
    std::vector<Row> all;
    for (const std::string& page : pageNames()) {
        all.push_back({page, "en"});
        all.push_back({page, "zh"});
    }
    return all;
}

class PageTextsTest : public testing::TestWithParam<Row>
{
protected:
    void SetUp() override
    {
        if (GetParam().language == "zh") {
            initResources();
            ASSERT_TRUE(m_translator.load(":/translator/kdlm_zh.qm"));
            QApplication::installTranslator(&m_translator);
        }
        m_window = std::make_unique<MainWindow>();
        m_window->showPage(QString::fromStdString(GetParam().page));
        m_window->resize(800, 600);
        m_window->show();
        ASSERT_TRUE(waitForExposed(m_window.get()));
        ASSERT_TRUE(waitFor([this] { return m_window->currentPage() != nullptr; }));
        ASSERT_TRUE(waitForJob(*m_window->currentPage()));
        QApplication::processEvents();
    }

    void TearDown() override
    {
        m_window.reset();
        QApplication::removeTranslator(&m_translator);
    }

    void expectTextsFit();

    SmallFont m_font;
    QTranslator m_translator;
    std::unique_ptr<MainWindow> m_window;
};

bool fits(const QWidget* widget)
{
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label && label->wordWrap())
        return label->height() >= label->heightForWidth(label->width());
    return widget->width() >= widget->sizeHint().width() &&
           widget->height() >= widget->fontMetrics().height();
}

void PageTextsTest::expectTextsFit()
{
    const QRect inside = m_window->rect();
    EXPECT_EQ(m_window->size(), QSize(800, 600));
    const auto all = m_window->currentPage()->findChildren<QWidget*>();
    for (const QWidget* widget : all) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        if ((!label && !button) || !widget->isVisible())
            continue;
        const std::string text = (label ? label->text() : button->text()).toStdString();
        EXPECT_TRUE(fits(widget)) << text;
        const QRect place(widget->mapTo(m_window.get(), QPoint()), widget->size());
        EXPECT_TRUE(inside.contains(place)) << text;
    }
}

TEST_P(PageTextsTest, NoTextIsCutOffInTheSmallWindow)
{
    auto* tabs = m_window->currentPage()->findChild<QTabWidget*>();
    for (int i = 0; tabs && i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QApplication::processEvents();
        expectTextsFit();
    }
    expectTextsFit();
}

bool needsName(const QWidget* widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return widget->focusPolicy() != Qt::NoFocus && !widget->objectName().startsWith("qt_") &&
           widget->isVisibleTo(widget->parentWidget()) && !(button && !button->text().isEmpty()) &&
           !qobject_cast<const QLabel*>(widget); // its text is read out
}

TEST_P(PageTextsTest, EveryControlHasAnAccessibleName)
{
    const auto all = m_window->currentPage()->findChildren<QWidget*>();
    for (const QWidget* widget : all) {
        EXPECT_FALSE(needsName(widget) && widget->accessibleName().isEmpty())
            << widget->metaObject()->className();
    }
}

// It is an answer of the services, and the Chinese for it reads like "empty".
TEST(PageTexts, NullIsNotTranslated)
{
    initResources();
    QTranslator translator;
    ASSERT_TRUE(translator.load(":/translator/kdlm_zh.qm"));
    const std::pair<const char*, const char*> rows[] = {
        {"FindWindowPanel", "null"},
        {"FindWindowPanel", "null: no window was found"},
        {"CursorShapes", "null: none is set"},
        {"CursorPanel", "SetCursor with null changes nothing."},
        {"MonitorQuery", "The monitor that holds the point, else null."},
        {"DecryptionNote",
         "DecryptionAES_Export gives null: its result holds at most %L1 bytes. This "
         "is what Encrypt::DecryptionAES gives."},
    };
    for (const auto& [context, text] : rows) {
        const QString translation = translator.translate(context, text);
        EXPECT_TRUE(translation.contains("null")) << text << ": " << translation.toStdString();
    }
}

// The captions of a page are read out without mnemonic and colon.
TEST(PageTexts, NameTheFieldsOfAProfileInChinese)
{
    const WindowProbe probe("profiles", WindowProbe::Language::Chinese);
    EXPECT_EQ(probe.control<QLineEdit>("section").accessibleName(), QStringLiteral("节"));
}

INSTANTIATE_TEST_SUITE_P(, PageTextsTest, testing::ValuesIn(rows()),
                         [](const auto& row) { return row.param.page + "_" + row.param.language; });

} // namespace
