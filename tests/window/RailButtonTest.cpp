#include "window/RailButton.h"

#include "tests/support/WaitFor.h"
#include "window/GlyphIcon.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

class RailButtonTest : public testing::Test
{
protected:
    RailButtonTest() : m_button(glyphIcon(Glyph::Key), "&Registry")
    {
        m_button.resize(m_button.sizeHint());
    }

    QImage picture() { return m_button.grab().toImage(); }

    RailButton m_button;
};

TEST_F(RailButtonTest, HasRoomForIconAndTextSideBySide)
{
    const int text = m_button.fontMetrics().size(Qt::TextShowMnemonic, m_button.text()).width();
    EXPECT_GT(m_button.sizeHint().width(), text + m_button.iconSize().width());
    EXPECT_GE(m_button.sizeHint().height(), m_button.iconSize().height());
    EXPECT_EQ(m_button.minimumSizeHint(), m_button.sizeHint());
}

TEST_F(RailButtonTest, GrowsWithTheFont)
{
    const QSize icon = m_button.iconSize();
    const QSize size = m_button.sizeHint();
    QFont font = m_button.font();
    font.setPointSize(font.pointSize() * 2);
    m_button.setFont(font);
    EXPECT_GT(m_button.iconSize().width(), icon.width());
    EXPECT_GT(m_button.sizeHint().width(), size.width());
    EXPECT_GT(m_button.sizeHint().height(), size.height());
}

TEST_F(RailButtonTest, IsHighlightedWhileItIsChecked)
{
    const QImage before = picture();
    m_button.setChecked(true);
    const QImage checked = picture();
    const QPoint field(checked.width() - 6, checked.height() / 2);
    EXPECT_EQ(checked.pixelColor(field), m_button.palette().color(QPalette::Highlight));
    EXPECT_EQ(before.pixelColor(field), m_button.palette().color(QPalette::Button));
}

TEST_F(RailButtonTest, LooksDifferentWhileItIsPressedOrDisabled)
{
    const QImage before = picture();
    m_button.setDown(true);
    EXPECT_NE(picture(), before);
    m_button.setDown(false);
    EXPECT_EQ(picture(), before);
    m_button.setEnabled(false);
    EXPECT_NE(picture(), before);
}

TEST_F(RailButtonTest, ShowsThatItHasTheFocus)
{
    m_button.show();
    ASSERT_TRUE(waitForActive(&m_button));
    m_button.clearFocus();
    const QImage before = picture();
    m_button.setFocus(Qt::TabFocusReason);
    EXPECT_NE(picture(), before);
}

TEST_F(RailButtonTest, IsMirroredInALanguageFromRightToLeft)
{
    const QImage before = picture();
    m_button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_NE(picture(), before);
}

} // namespace
