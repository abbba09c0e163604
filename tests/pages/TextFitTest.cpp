#include "tests/pages/SmallFont.h"

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/WaitFor.h"
#include "window/MainWindow.h"
#include "window/Page.h"
#include "window/PageCatalogue.h"
#include "window/PageRail.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMap>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

static void initResources()
{
    Q_INIT_RESOURCE(quayside);
}

namespace {

struct Row
{
    const char* language;
    int page;
};

std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.language << " page " << row.page;
}

// Every page at 800 x 600, in both languages.
class TextsOfAPage : public testing::TestWithParam<Row>
{
protected:
    TextsOfAPage()
    {
        setPlatformServices(&g_PlatformServices);
        initResources();
        if (qstrcmp(GetParam().language, "zh") != 0)
            return;
        EXPECT_TRUE(m_translator.load(":/translator/kdlm_zh.qm"));
        QApplication::installTranslator(&m_translator);
    }
    ~TextsOfAPage() override { QApplication::removeTranslator(&m_translator); }

    static bool fits(const QLabel& label)
    {
        const int height =
            label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height();
        return label.height() >= height &&
               (label.wordWrap() || label.width() >= label.sizeHint().width());
    }

    SmallFont m_font;
    QTranslator m_translator;
};

TEST_P(TextsOfAPage, AreNotCutOff)
{
    MainWindow window;
    window.showPage(pageCatalogue()[static_cast<std::size_t>(GetParam().page)].name);
    window.resize(800, 600);
    window.show();
    ASSERT_TRUE(waitFor([&window] { return window.currentPage() != nullptr; }));
    EXPECT_TRUE(waitFor([&window] { return window.size() == QSize(800, 600); }));
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty())
            continue;
        // A label that has just got its text is laid out at the next turn of the event loop.
        EXPECT_TRUE(waitFor([label] { return fits(*label); })) << label->text().toStdString();
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty())
            continue;
        EXPECT_TRUE(waitFor([button] {
            return button->width() >= button->minimumSizeHint().width();
        })) << button->text().toStdString();
    }
}

// What stands in a label and nowhere else must be read out as it stands.
void expectReadOut(QLabel& label)
{
    const QString text = label.text();
    if (!label.isVisible() || text.isEmpty())
        return;
    const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&label);
    const QString name = accessible->text(QAccessible::Name);
    EXPECT_TRUE(name.contains(QString(text).remove(QLatin1Char('&'))))
        << text.toStdString() << " is read as " << name.toStdString();
}

TEST_P(TextsOfAPage, AreReadOut)
{
    MainWindow window;
    window.showPage(pageCatalogue()[static_cast<std::size_t>(GetParam().page)].name);
    window.show();
    ASSERT_TRUE(waitFor([&window] { return window.currentPage() != nullptr; }));
    window.currentPage()->report(Page::Report::Warning, QStringLiteral("It was refused."));
    auto* tabs = window.currentPage()->findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        QTest::qWait(20);
        for (QLabel* label : window.findChildren<QLabel*>())
            expectReadOut(*label);
    }
}

// The captions that can be seen now.
QStringList captions(const QWidget& window)
{
    QStringList all;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        const auto* label = qobject_cast<const QLabel*>(widget);
        if (label && label->buddy())
            all += label->text();
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            all += button->text();
        if (const auto* box = qobject_cast<const QGroupBox*>(widget))
            all += box->title();
        if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                all += tabs->tabText(tab);
        }
    }
    return all;
}

TEST_P(TextsOfAPage, ShareNoMnemonic)
{
    MainWindow window;
    window.showPage(pageCatalogue()[static_cast<std::size_t>(GetParam().page)].name);
    window.show();
    ASSERT_TRUE(waitFor([&window] { return window.currentPage() != nullptr; }));
    auto* tabs = window.currentPage()->findChild<QTabWidget*>();
    for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
        if (tabs)
            tabs->setCurrentIndex(tab);
        QTest::qWait(20);
        QMap<QKeySequence, QString> owners;
        for (const QString& caption : captions(window)) {
            const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
            EXPECT_FALSE(!mnemonic.isEmpty() && owners.contains(mnemonic))
                << owners.value(mnemonic).toStdString() << " | " << caption.toStdString();
            owners.insert(mnemonic, caption);
        }
    }
}

std::vector<Row> rows()
{
    std::vector<Row> all;
    for (int page = 0; page < static_cast<int>(pageCatalogue().size()); ++page) {
        all.push_back({"en", page});
        all.push_back({"zh", page});
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(MainWindow, TextsOfAPage, testing::ValuesIn(rows()));

} // namespace
