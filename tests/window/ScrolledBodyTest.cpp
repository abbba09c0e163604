#include "window/ScrolledBody.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

class ScrolledBodyTest : public testing::Test
{
protected:
    ScrolledBodyTest() : m_layout(new QVBoxLayout), m_body(m_layout)
    {
        auto* text = new QLabel("A text that is long enough for several lines of a narrow page.");
        text->setWordWrap(true);
        m_table->setMinimumHeight(60);
        m_layout->addWidget(m_first);
        m_layout->addWidget(text);
        m_layout->addWidget(m_table, 1);
        m_layout->addWidget(m_last);
    }

    void show(int height)
    {
        m_body.resize(300, height);
        m_body.show();
        ASSERT_TRUE(waitForActive(&m_body));
    }
    // The part of the widget that can be seen.
    QRect shown(const QWidget& widget) const
    {
        const QRect place(widget.mapTo(m_body.viewport(), QPoint()), widget.size());
        return place & m_body.viewport()->rect();
    }
    bool scrolls() const { return m_body.verticalScrollBar()->maximum() > 0; }

    QVBoxLayout* m_layout;
    QLineEdit* m_first = new QLineEdit;
    QTableView* m_table = new QTableView;
    QLineEdit* m_last = new QLineEdit;
    ScrolledBody m_body;
};

TEST_F(ScrolledBodyTest, IsAsLargeAsThePageWhereThereIsRoom)
{
    show(500);
    EXPECT_FALSE(scrolls());
    EXPECT_EQ(m_body.widget()->size(), m_body.size());
}

TEST_F(ScrolledBodyTest, ShrinksWhatCanShrinkBeforeItScrolls)
{
    const int wanted = m_table->sizeHint().height();
    show(220);
    EXPECT_LT(m_table->height(), wanted);
    EXPECT_FALSE(scrolls());
}

TEST_F(ScrolledBodyTest, ScrollsToTheControlThatGetsTheKeyboard)
{
    show(100);
    EXPECT_TRUE(scrolls());
    EXPECT_LT(shown(*m_last).height(), m_last->height());
    m_last->setFocus();
    EXPECT_EQ(shown(*m_last).height(), m_last->height());
    m_first->setFocus();
    EXPECT_EQ(shown(*m_first).height(), m_first->height());
}

TEST_F(ScrolledBodyTest, TakesNoKeyboardItself)
{
    EXPECT_EQ(m_body.focusPolicy(), Qt::NoFocus);
}

} // namespace
