#include "window/EmptyHint.h"
#include "tests/support/WaitFor.h"

#include <QLabel>
#include <QListView>
#include <QStringListModel>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class EmptyHintTest : public testing::Test
{
protected:
    EmptyHintTest()
    {
        m_view.setModel(&m_model);
        m_view.resize(200, 200);
        m_view.show();
        m_hint = new EmptyHint(&m_view, "Nothing here yet.");
    }

    QLabel& label() { return *m_view.viewport()->findChild<QLabel*>(); }

    QStringListModel m_model;
    QListView m_view;
    EmptyHint* m_hint = nullptr;
};

TEST_F(EmptyHintTest, StandsInAViewForAsLongAsItIsEmpty)
{
    EXPECT_TRUE(label().isVisible());
    m_model.setStringList({"a"});
    EXPECT_FALSE(label().isVisible());
    m_model.removeRows(0, 1);
    EXPECT_TRUE(label().isVisible());
    EXPECT_TRUE(m_view.viewport()->rect().contains(label().geometry()));
}

TEST_F(EmptyHintTest, GoesWhenARowIsInserted)
{
    m_model.insertRows(0, 1);
    EXPECT_FALSE(label().isVisible());
}

TEST_F(EmptyHintTest, FollowsTheViewsSize)
{
    const int before = label().width();
    m_view.resize(400, 300);
    EXPECT_TRUE(waitFor([this, before] { return label().width() == before + 200; }));
}

TEST_F(EmptyHintTest, ShowsANewTextWithTheMiddleOfLongWordsLeftOut)
{
    m_hint->setText("No such name: " + QString(300, QLatin1Char('w')));
    EXPECT_TRUE(label().text().startsWith("No such name: www"));
    EXPECT_LT(label().text().size(), 100);
}

TEST_F(EmptyHintTest, ShowsMarkupAsItStands)
{
    EXPECT_EQ(label().textFormat(), Qt::PlainText);
}

TEST_F(EmptyHintTest, LeavesTheMouseToTheView)
{
    EXPECT_TRUE(label().testAttribute(Qt::WA_TransparentForMouseEvents));
}

} // namespace
