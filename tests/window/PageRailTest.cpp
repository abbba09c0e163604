#include "window/PageRail.h"

#include "tests/support/WaitFor.h"
#include "window/GlyphIcon.h"
#include "window/GlyphPainter.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class PageRailTest : public testing::Test
{
protected:
    PageRailTest()
        : m_rail({{"first", "&First", glyphDrawing(Glyph::Key), nullptr},
                  {"second", QString::fromUtf8("第二(&S)"), glyphDrawing(Glyph::Text), nullptr}})
    {
    }

    QPushButton& button(const QString& name) { return *m_rail.findChild<QPushButton*>(name); }

    PageRail m_rail;
};

TEST_F(PageRailTest, NamesItsButtonsWithoutTheirMnemonics)
{
    EXPECT_EQ(button("first").accessibleName(), "First");
    EXPECT_EQ(button("second").accessibleName(), QString::fromUtf8("第二"));
    EXPECT_EQ(button("second").text(), QString::fromUtf8("第二(&S)"));
}

TEST_F(PageRailTest, TellsTheDigitOfAPage)
{
    EXPECT_EQ(button("first").toolTip(), "Alt+1");
    EXPECT_EQ(button("second").toolTip(), "Alt+2");
}

TEST_F(PageRailTest, TellsWhichPageTheUserChooses)
{
    QSignalSpy choices(&m_rail, &PageRail::chosen);
    QTest::mouseClick(&button("second"), Qt::LeftButton);
    QTest::mouseClick(&button("second"), Qt::LeftButton);
    ASSERT_EQ(choices.size(), 2);
    EXPECT_EQ(choices[0][0].toInt(), 1);
    EXPECT_EQ(choices[1][0].toInt(), 1);
}

TEST_F(PageRailTest, TellsAnArrowKeyFromAPress)
{
    m_rail.setChosen(0);
    m_rail.show();
    ASSERT_TRUE(waitForActive(&m_rail));
    button("first").setFocus();
    QSignalSpy choices(&m_rail, &PageRail::chosen);
    QSignalSpy steps(&m_rail, &PageRail::browsed);
    QTest::keyClick(&button("first"), Qt::Key_Down);
    ASSERT_EQ(steps.size(), 1);
    EXPECT_EQ(steps[0][0].toInt(), 1);
    EXPECT_EQ(choices.size(), 0);
    QTest::keyClick(&button("second"), Qt::Key_Space);
    EXPECT_EQ(steps.size(), 1);
    EXPECT_EQ(choices.size(), 1);
}

TEST_F(PageRailTest, ChecksOneButtonWithoutTellingIt)
{
    QSignalSpy choices(&m_rail, &PageRail::chosen);
    m_rail.setChosen(0);
    EXPECT_TRUE(button("first").isChecked());
    m_rail.setChosen(1);
    EXPECT_FALSE(button("first").isChecked());
    EXPECT_TRUE(button("second").isChecked());
    m_rail.setChosen(2); // there is no such page
    EXPECT_TRUE(button("second").isChecked());
    EXPECT_EQ(choices.size(), 0);
}

} // namespace
