#include "window/PageFooter.h"

#include "tests/support/WaitFor.h"
#include "window/MadeChange.h"

#include <QLabel>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>
#include <QUndoStack>

#include <gtest/gtest.h>

namespace {

class Count : public MadeChange
{
public:
    explicit Count(int& count) : MadeChange("Count one more"), m_count(count) {}

protected:
    void takeBack() override { --m_count; }
    void makeAgain() override { ++m_count; }

private:
    int& m_count;
};

class PageFooterTest : public testing::Test
{
protected:
    PageFooterTest()
    {
        m_footer.resize(600, 40);
        static_cast<QWidget&>(m_footer).show();
        EXPECT_TRUE(waitForExposed(&m_footer));
    }

    QToolButton& button(const QString& name)
    {
        for (QToolButton* button : m_footer.findChildren<QToolButton*>()) {
            if (button->accessibleName() == name)
                return *button;
        }
        ADD_FAILURE() << "no button " << name.toStdString();
        std::abort();
    }
    QToolButton& undo() { return button("Undo (Ctrl+Z)"); }
    QToolButton& redo() { return button("Redo (Ctrl+Shift+Z)"); }

    void change()
    {
        ++m_count;
        m_changes.push(new Count(m_count));
    }

    int m_count = 0;
    QUndoStack m_changes;
    PageFooter m_footer{m_changes};
};

TEST_F(PageFooterTest, ShowsNoButtonBeforeThereIsSomethingForIt)
{
    for (const QToolButton* button : m_footer.findChildren<QToolButton*>())
        EXPECT_FALSE(button->isVisible()) << button->accessibleName().toStdString();
}

TEST_F(PageFooterTest, APushedChangeIsNotMadeASecondTime)
{
    change();
    EXPECT_EQ(m_count, 1);
}

TEST_F(PageFooterTest, TheButtonsUndoAndRedoTheLastChange)
{
    change();
    change();
    undo().click();
    EXPECT_EQ(m_count, 1);
    redo().click();
    EXPECT_EQ(m_count, 2);
}

TEST_F(PageFooterTest, TheButtonsNameTheChangeAndAreDisabledWithoutOne)
{
    change();
    EXPECT_EQ(undo().toolTip().toStdString(), "Undo (Ctrl+Z): Count one more");
    EXPECT_FALSE(redo().isEnabled());
    undo().click();
    EXPECT_FALSE(undo().isEnabled());
    EXPECT_EQ(undo().toolTip().toStdString(), "Undo (Ctrl+Z)");
    EXPECT_EQ(redo().toolTip().toStdString(), "Redo (Ctrl+Shift+Z): Count one more");
}

TEST_F(PageFooterTest, ARefusalStandsOnAGroundOfItsOwn)
{
    const auto ground = [this](PageContext::Report kind) {
        m_footer.show(kind, "What was said.");
        QTest::qWait(20);
        for (const QLabel* label : m_footer.findChildren<QLabel*>()) {
            if (label->text() == "What was said.") {
                const QPoint corner = label->geometry().bottomRight() - QPoint(2, 2);
                return m_footer.grab().toImage().pixelColor(corner);
            }
        }
        return QColor();
    };
    const QColor plain = ground(PageContext::Report::Info);
    EXPECT_EQ(plain, m_footer.palette().color(QPalette::Window));
    EXPECT_NE(ground(PageContext::Report::Warning), plain);
    EXPECT_NE(ground(PageContext::Report::Error), plain);
    EXPECT_NE(ground(PageContext::Report::Error), ground(PageContext::Report::Warning));
    EXPECT_EQ(ground(PageContext::Report::Info), plain);
}

TEST_F(PageFooterTest, TellsWhenThePageWasReadAndReadsItAgainOnRequest)
{
    int requests = 0;
    QObject::connect(&m_footer, &PageFooter::rereadRequested, [&requests] { ++requests; });
    m_footer.markRead();
    QStringList texts;
    for (const QLabel* label : m_footer.findChildren<QLabel*>())
        texts += label->text();
    EXPECT_GE(texts.indexOf(QRegularExpression("Read at \\d\\d:\\d\\d:\\d\\d")), 0)
        << texts.join('|').toStdString();
    button("Read again (F5)").click();
    EXPECT_EQ(requests, 1);
}

// A role that a palette only derives has a brush that paints nothing.
TEST_F(PageFooterTest, TheTimeOfReadingCanBeSeen)
{
    m_footer.markRead();
    QTest::qWait(20);
    for (const QLabel* label : m_footer.findChildren<QLabel*>()) {
        if (!label->text().startsWith("Read at"))
            continue;
        const QImage picture = m_footer.grab(label->geometry()).toImage();
        bool isPainted = false;
        for (int x = 0; x < picture.width(); ++x)
            isPainted |= picture.pixel(x, picture.height() / 2) != picture.pixel(0, 0);
        EXPECT_TRUE(isPainted);
    }
}

} // namespace
