#include "window/PageStack.h"

#include "tests/support/WaitFor.h"
#include "window/GlyphIcon.h"
#include "window/GlyphPainter.h"
#include "window/Page.h"

#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

// Counts the visits that the window tells it of.
class VisitedPage : public Page
{
public:
    explicit VisitedPage(QWidget* parent) : Page(parent)
    {
        auto* red = new QWidget;
        red->setPalette(QPalette(Qt::red));
        red->setAutoFillBackground(true);
        body()->addWidget(red);
    }

    void entered() override { ++visits; }

    int visits = 0;
};

Page* make(QWidget* parent)
{
    return new VisitedPage(parent);
}

class PageStackTest : public testing::Test
{
protected:
    PageStackTest()
        : m_stack({{"first", "&First", glyphDrawing(Glyph::Key), &make},
                   {"second", "&Second", glyphDrawing(Glyph::Text), &make},
                   {"third", "&Third", glyphDrawing(Glyph::Number), &make}}),
          m_entered(&m_stack, &PageStack::entered)
    {
        m_stack.resize(400, 300);
    }

    void show()
    {
        m_stack.show();
        ASSERT_TRUE(waitFor([this] { return !m_entered.isEmpty(); }));
    }
    int visits(int page) const { return static_cast<VisitedPage*>(m_stack.page(page))->visits; }
    bool enters(int page)
    {
        return waitFor(
            [this, page] { return !m_entered.isEmpty() && m_entered.last()[0].toInt() == page; });
    }

    PageStack m_stack;
    QSignalSpy m_entered;
};

TEST_F(PageStackTest, MakesAPageOnItsFirstVisitAlone)
{
    EXPECT_EQ(m_stack.page(0), nullptr);
    show();
    const Page* first = m_stack.page(0);
    ASSERT_TRUE(first);
    EXPECT_EQ(m_stack.page(1), nullptr);
    m_stack.slideTo(1);
    ASSERT_TRUE(enters(1));
    m_stack.slideTo(0);
    ASSERT_TRUE(enters(0));
    EXPECT_EQ(m_stack.page(0), first);
    EXPECT_EQ(m_stack.page(2), nullptr);
}

TEST_F(PageStackTest, HasNoPageBeyondItsOwn)
{
    EXPECT_EQ(m_stack.page(3), nullptr);
    EXPECT_EQ(m_stack.page(-1), nullptr);
}

TEST_F(PageStackTest, TellsAPageOfEachVisit)
{
    show();
    EXPECT_EQ(visits(0), 1);
    m_stack.slideTo(2);
    EXPECT_EQ(m_stack.current(), 0) << "the leaving page is in view while the slide runs";
    ASSERT_TRUE(enters(2));
    EXPECT_EQ(m_stack.current(), 2);
    EXPECT_EQ(visits(2), 1);
    m_stack.slideTo(0);
    ASSERT_TRUE(enters(0));
    EXPECT_EQ(visits(0), 2);
}

TEST_F(PageStackTest, OpensOnAPageWithoutMakingTheFirst)
{
    m_stack.open(1);
    show();
    EXPECT_EQ(m_stack.current(), 1);
    EXPECT_EQ(m_stack.page(0), nullptr);
    EXPECT_EQ(visits(1), 1);
}

TEST_F(PageStackTest, FollowsTheLastOfTheChoicesMadeDuringASlide)
{
    show();
    for (const int page : {1, 0, 2})
        m_stack.slideTo(page);
    ASSERT_TRUE(enters(2));
    EXPECT_EQ(m_entered.size(), 3); // the first, the second and the third page
    EXPECT_EQ(visits(0), 1);
}

// The slide to a page that was never shown shows its picture.
TEST_F(PageStackTest, APageCanBePicturedBeforeItIsShown)
{
    show();
    QWidget& holder = *m_stack.made(1)->parentWidget();
    holder.resize(m_stack.size());
    QPixmap picture(holder.size());
    holder.render(&picture);
    EXPECT_EQ(picture.toImage().pixelColor(picture.rect().center()), QColor(Qt::red));
}

TEST_F(PageStackTest, StaysWhereThePageInViewIsChosen)
{
    show();
    m_stack.slideTo(0);
    m_stack.slideTo(3); // there is no such page
    m_stack.slideTo(1);
    EXPECT_TRUE(enters(1));
}

} // namespace
