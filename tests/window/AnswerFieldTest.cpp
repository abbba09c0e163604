#include "window/AnswerField.h"

#include "tests/pages/ShownToolTip.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace {

class AnswerFieldTest : public testing::Test
{
protected:
    ~AnswerFieldTest() override { QApplication::setPalette(m_former); }

    const QPalette m_former = QApplication::palette();
    AnswerField m_field{QStringLiteral("Name"), QStringLiteral("object")};
};

TEST_F(AnswerFieldTest, ShowsALongTextFromItsBeginning)
{
    m_field.setAnswer(QString(1000, QLatin1Char('x')));
    EXPECT_EQ(m_field.cursorPosition(), 0);
    EXPECT_EQ(m_field.toolTip(), m_field.text());
}

TEST_F(AnswerFieldTest, ShowsMarkupAsItStands)
{
    m_field.setAnswer(QStringLiteral("<b>bold</b> & more"));
    EXPECT_EQ(shownToolTip(m_field.toolTip()), m_field.text());
}

TEST_F(AnswerFieldTest, KeepsTheSelectionWhenTheAnswerIsTheSame)
{
    m_field.setAnswer(QStringLiteral("answer"));
    m_field.selectAll();
    m_field.setAnswer(QStringLiteral("answer"));
    EXPECT_EQ(m_field.selectedText(), QStringLiteral("answer"));
}

TEST_F(AnswerFieldTest, CannotBeTypedInto)
{
    EXPECT_TRUE(m_field.isReadOnly());
    EXPECT_NE(m_field.focusPolicy() & Qt::TabFocus, 0);
}

TEST_F(AnswerFieldTest, FollowsThePaletteOfTheApplication)
{
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(1, 2, 3));
    dark.setColor(QPalette::WindowText, QColor(4, 5, 6));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    EXPECT_EQ(m_field.palette().color(QPalette::Base), QColor(1, 2, 3));
    EXPECT_EQ(m_field.palette().color(QPalette::Text), QColor(4, 5, 6));
}

} // namespace
