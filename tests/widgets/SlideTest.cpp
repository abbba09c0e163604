#include "tests/support/MessageGuard.h"
#include "tests/support/WaitFor.h"
#include "tests/widgets/StackFixture.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QVariantAnimation>

#include <climits>

namespace {

using Request = std::function<void(QAnimationStackedWidget&)>;

void next(QAnimationStackedWidget& stack)
{
    stack.next();
}

void forward(QAnimationStackedWidget& stack)
{
    stack.forward();
}

Request nextTo(int index)
{
    return [index](QAnimationStackedWidget& stack) { stack.nextTo(index); };
}

Request forwardTo(int index)
{
    return [index](QAnimationStackedWidget& stack) { stack.forwardTo(index); };
}

struct Change
{
    const char* name;
    int pages;
    int from;
    Request request;
    int to;
    bool fromLeft = false;
};

void PrintTo(const Change& change, std::ostream* out)
{
    *out << change.name;
}

class SlideTarget : public testing::TestWithParam<Change>
{
};

TEST_P(SlideTarget, BecomesTheCurrentPageInTheOldOrder)
{
    const Change& change = GetParam();
    QAnimationStackedWidget stack;
    QList<QWidget*> pages;
    for (int i = 0; i < change.pages; ++i) {
        pages.append(new QWidget);
        stack.addWidget(pages.last());
    }
    stack.setCurrentIndex(change.from);
    stack.setDuration(0);
    change.request(stack);
    EXPECT_EQ(change.from, stack.currentIndex());
    turn();
    EXPECT_EQ(change.to, stack.currentIndex());
    ASSERT_EQ(pages.size(), stack.count());
    for (int i = 0; i < stack.count(); ++i) {
        EXPECT_EQ(pages[i], stack.widget(i));
        EXPECT_EQ(i != change.to, pages[i]->isHidden()) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Requests, SlideTarget,
    testing::Values(Change{"NextOfFirst", 3, 0, next, 1}, Change{"NextOfMiddle", 3, 1, next, 2},
                    Change{"NextOfLast", 3, 2, next, 0}, Change{"NextOfOnly", 1, 0, next, 0},
                    Change{"NextOfTwo", 2, 1, next, 0}, Change{"ForwardOfFirst", 3, 0, forward, 2},
                    Change{"ForwardOfMiddle", 3, 1, forward, 0},
                    Change{"ForwardOfLast", 3, 2, forward, 1},
                    Change{"ForwardOfOnly", 1, 0, forward, 0},
                    Change{"NextToLater", 5, 1, nextTo(4), 4},
                    Change{"NextToEarlier", 5, 3, nextTo(0), 0},
                    Change{"ForwardToEarlier", 5, 4, forwardTo(1), 1},
                    Change{"ForwardToLater", 5, 0, forwardTo(4), 4}),
    [](const auto& row) { return row.param.name; });

class SlideRequest : public StackFixture, public testing::WithParamInterface<Change>
{
};

TEST_P(SlideRequest, HidesTheCurrentPageAndStartsTheAnimation)
{
    QVariantAnimation* animation = animationOf(stack);
    stack.setDuration(777);
    GetParam().request(stack);
    EXPECT_EQ(0, stack.currentIndex());
    EXPECT_TRUE(page(0).isHidden());
    EXPECT_TRUE(page(GetParam().to).isHidden());
    EXPECT_EQ(QAbstractAnimation::Running, animation->state());
    EXPECT_EQ(777, animation->duration());
    EXPECT_EQ(QVariant(GetParam().fromLeft ? 0 : 200), animation->startValue());
    EXPECT_EQ(QVariant(GetParam().fromLeft ? 200 : 0), animation->endValue());
    EXPECT_EQ(QVariant::Int, animation->startValue().type());
    EXPECT_EQ(QVariant::Int, animation->endValue().type());
}

TEST_P(SlideRequest, MovesByWholePixels)
{
    QVariantAnimation* animation = animationOf(stack);
    GetParam().request(stack);
    animation->pause();
    animation->setCurrentTime(301); // 100.33 pixels on
    EXPECT_EQ(QVariant::Int, animation->currentValue().type());
    EXPECT_EQ(GetParam().fromLeft ? 100 : 99, animation->currentValue().toInt());
}

TEST_P(SlideRequest, ShowsTheArrivingPageAtTheEnd)
{
    stack.setDuration(0);
    GetParam().request(stack);
    turn();
    EXPECT_TRUE(page(0).isHidden());
    EXPECT_TRUE(page(GetParam().to).isVisible());
}

TEST_P(SlideRequest, IgnoresEveryRequestWhileItRuns)
{
    QVariantAnimation* animation = animationOf(stack);
    GetParam().request(stack);
    const QVariant start = animation->startValue();
    for (const Request& later : {Request(next), Request(forward), nextTo(2), nextTo(1), nextTo(0),
                                 forwardTo(2), forwardTo(1), forwardTo(0)}) {
        later(stack);
        EXPECT_EQ(start, animation->startValue());
        stack.slotValueChanged(80);
        EXPECT_EQ("", firstDifference(stack.grab().toImage(),
                                      slideFrame(0, GetParam().to, GetParam().fromLeft, 80)));
    }
    animation->setCurrentTime(600);
    turn();
    EXPECT_EQ(GetParam().to, stack.currentIndex());
}

TEST_P(SlideRequest, DoesNotBlockTheStackItself)
{
    QVariantAnimation* animation = animationOf(stack);
    GetParam().request(stack);
    const int other = GetParam().to == 1 ? 2 : 1;
    stack.setCurrentIndex(other);
    EXPECT_EQ(other, stack.currentIndex());
    animation->setCurrentTime(600);
    turn();
    EXPECT_EQ(GetParam().to, stack.currentIndex());
    EXPECT_TRUE(page(other).isHidden());
    EXPECT_TRUE(page(GetParam().to).isVisible());
}

TEST_P(SlideRequest, TakesThePageThatIsCurrentAlready)
{
    QVariantAnimation* animation = animationOf(stack);
    GetParam().request(stack);
    stack.setCurrentIndex(GetParam().to);
    animation->setCurrentTime(600);
    turn();
    EXPECT_TRUE(page(GetParam().to).isVisible());
    EXPECT_TRUE(page(0).isHidden());
}

INSTANTIATE_TEST_SUITE_P(Requests, SlideRequest,
                         testing::Values(Change{"Next", 3, 0, next, 1},
                                         Change{"Forward", 3, 0, forward, 2, true},
                                         Change{"NextTo", 3, 0, nextTo(2), 2},
                                         Change{"ForwardTo", 3, 0, forwardTo(1), 1, true}),
                         [](const auto& row) { return row.param.name; });

class RejectedIndex : public StackFixture, public testing::WithParamInterface<int>
{
protected:
    // Nothing tells the direction but the side on which the leaving page is painted.
    void expectDirection(bool fromLeft)
    {
        stack.slotValueChanged(80);
        const int line = 80 * qRound(stack.devicePixelRatioF());
        const auto frame = slideFrame(0, 1, fromLeft, 80);
        const QImage picture =
            pictureOfStep([this](QPainter& painter) { stack.paintPrevious(painter, 0); });
        EXPECT_EQ("", firstDifference(picture, [&](int x, int y) {
                      return (x < line) == fromLeft ? 0U : frame(x, y);
                  }));
    }
};

TEST_P(RejectedIndex, FreezesTheStackInNextTo)
{
    stack.nextTo(GetParam());
    stack.setDuration(0);
    for (const Request& later : {Request(next), Request(forward), nextTo(1), forwardTo(1)}) {
        later(stack);
        turn();
        EXPECT_EQ(0, stack.currentIndex());
        EXPECT_TRUE(page(0).isVisible());
    }
}

TEST_P(RejectedIndex, FreezesTheFourRequestsOnly)
{
    stack.nextTo(GetParam());
    stack.setCurrentIndex(2);
    EXPECT_EQ(2, stack.currentIndex());
    EXPECT_TRUE(page(2).isVisible());
}

TEST_P(RejectedIndex, LeavesThePageToBeSeenBeforeAnySlide)
{
    stack.nextTo(GetParam());
    EXPECT_EQ("", firstDifference(stack.grab().toImage(),
                                  [this](int x, int y) { return page(0).colorAt(x, y); }));
}

TEST_P(RejectedIndex, LeavesThePageToBeSeenAfterASlide)
{
    animationOf(stack);
    stack.nextTo(GetParam());
    EXPECT_EQ("", firstDifference(stack.grab().toImage(),
                                  [this](int x, int y) { return page(0).colorAt(x, y); }));
}

// Beside a page that is smaller than the stack the painting of a frozen one is to be seen.
TEST_P(RejectedIndex, LeavesTheStackPainting)
{
    page(0).setFixedSize(90, 50);
    turn();
    stack.nextTo(GetParam());
    stack.slotValueChanged(120);
    const int line = 120 * qRound(stack.devicePixelRatioF());
    const auto leaving = slideFrame(0, 0, false, 120);
    EXPECT_EQ("", firstDifference(stack.grab().toImage(), [&](int x, int y) {
                  const QRgb live = page(0).colorAt(x, y);
                  const QRgb below = x < line ? leaving(x, y) : background;
                  return live == 0 ? below : live;
              }));
}

TEST_P(RejectedIndex, LeavesTheStackPaintingTheLastTarget)
{
    animationOf(stack); // slides to page 1
    page(0).setFixedSize(90, 50);
    turn();
    stack.nextTo(GetParam());
    EXPECT_EQ("", firstDifference(stack.grab().toImage(), [this](int x, int y) {
                  const QRgb live = page(0).colorAt(x, y);
                  return live == 0 ? page(1).colorAt(x, y) : live;
              }));
}

TEST_P(RejectedIndex, IsHarmlessInForwardTo)
{
    stack.setDuration(0);
    stack.forwardTo(GetParam());
    turn();
    EXPECT_EQ(0, stack.currentIndex());
    EXPECT_TRUE(page(0).isVisible());
    stack.next();
    turn();
    EXPECT_EQ(1, stack.currentIndex());
}

TEST_P(RejectedIndex, IsHarmlessInNextToWhileASlideRuns)
{
    QVariantAnimation* animation = animationOf(stack);
    stack.next();
    stack.nextTo(GetParam());
    animation->setCurrentTime(600);
    turn();
    stack.setDuration(0);
    stack.next();
    turn();
    EXPECT_EQ(2, stack.currentIndex());
}

TEST_P(RejectedIndex, TurnsTheDirectionInForwardTo)
{
    stack.forwardTo(GetParam());
    expectDirection(true);
}

TEST_P(RejectedIndex, TurnsTheDirectionBackInNextTo)
{
    stack.forwardTo(GetParam());
    stack.nextTo(GetParam());
    expectDirection(false);
}

INSTANTIATE_TEST_SUITE_P(Indices, RejectedIndex,
                         testing::Values(0, 3, 4, INT_MAX, -1, -2, INT_MIN));

using Slide = StackFixture;

TEST_F(Slide, TakesSixHundredMillisecondsUnlessToldOtherwise)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(600, slideToTheEnd(stack)->duration());
    EXPECT_GE(clock.elapsed(), 590);
}

TEST_F(Slide, RunsEvenly)
{
    EXPECT_EQ(QEasingCurve::Linear, animationOf(stack)->easingCurve().type());
}

TEST_F(Slide, TakesTheDurationAtItsStart)
{
    QVariantAnimation* animation = animationOf(stack);
    stack.setDuration(500);
    stack.next();
    stack.setDuration(100);
    EXPECT_EQ(500, animation->duration());
    animation->setCurrentTime(500);
    turn();
    stack.next();
    EXPECT_EQ(100, animation->duration());
}

TEST_F(Slide, OfNoDurationEndsAtTheNextTurn)
{
    stack.setDuration(0);
    stack.next();
    stack.forward(); // ignored: the slide has not ended yet
    EXPECT_EQ(0, stack.currentIndex());
    turn();
    EXPECT_EQ(1, stack.currentIndex());
}

TEST_F(Slide, HandsANegativeDurationToTheAnimation)
{
    QVariantAnimation* animation = animationOf(stack);
    stack.setDuration(-1);
    {
        const ExpectMessage message("negative duration");
        stack.next();
    }
    EXPECT_EQ(0, animation->duration()); // as before
}

TEST_F(Slide, MayBeStartedByWhoeverHearsOfTheNewPage)
{
    stack.setDuration(0);
    QObject::connect(&stack, &QStackedWidget::currentChanged, &stack, [this](int index) {
        if (index == 1)
            stack.next();
    });
    stack.next();
    ASSERT_TRUE(waitFor([this] { return stack.currentIndex() == 2; }));
    EXPECT_TRUE(page(2).isVisible());
}

TEST_F(Slide, AnnouncesTheNewPageOnce)
{
    const QSignalSpy changes(&stack, &QStackedWidget::currentChanged);
    stack.setDuration(0);
    stack.forwardTo(2);
    turn();
    ASSERT_EQ(1, changes.count());
    EXPECT_EQ(2, changes[0][0].toInt());
}

TEST_F(Slide, RepaintsTheStackAtEveryValue)
{
    struct PaintCounter : QObject
    {
        int count = 0;
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } counter;
    stack.installEventFilter(&counter);
    QVariantAnimation* animation = animationOf(stack);
    stack.next();
    animation->pause();
    turn();
    for (const int time : {100, 200, 300}) {
        counter.count = 0;
        animation->setCurrentTime(time);
        turn();
        EXPECT_EQ(1, counter.count) << time;
    }
}

TEST(StackWithoutPages, IgnoresRequests)
{
    for (const Request& request : {Request(next), Request(forward), forwardTo(0), nextTo(0)}) {
        QAnimationStackedWidget stack;
        stack.setDuration(0);
        request(stack);
        turn();
        EXPECT_EQ(-1, stack.currentIndex());
    }
}

// Gives an empty stack its first pages and asks for the second.
int pageAfterNext(QAnimationStackedWidget& stack)
{
    stack.setDuration(0);
    stack.addWidget(new QWidget);
    stack.addWidget(new QWidget);
    stack.next();
    turn();
    return stack.currentIndex();
}

class IndexWithoutPages : public testing::TestWithParam<int>
{
};

TEST_P(IndexWithoutPages, FreezesTheStackInNextTo)
{
    QAnimationStackedWidget stack;
    stack.nextTo(GetParam());
    EXPECT_EQ(0, pageAfterNext(stack));
}

TEST_P(IndexWithoutPages, IsHarmlessInForwardTo)
{
    QAnimationStackedWidget stack;
    stack.forwardTo(GetParam());
    EXPECT_EQ(1, pageAfterNext(stack));
}

INSTANTIATE_TEST_SUITE_P(Indices, IndexWithoutPages, testing::Values(0, 1, -1));

TEST(StackWithoutPages, IsNotFrozenByNext)
{
    QAnimationStackedWidget stack;
    stack.next();
    stack.forward();
    EXPECT_EQ(1, pageAfterNext(stack));
}

} // namespace
