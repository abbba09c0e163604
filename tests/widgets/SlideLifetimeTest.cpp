#include "tests/widgets/StackFixture.h"

#include <QPointer>
#include <QTest>
#include <QVariantAnimation>

#include <memory>

namespace {

std::unique_ptr<ProbedStack> stackOfTwo()
{
    auto stack = std::make_unique<ProbedStack>();
    stack->addWidget(new PatternPage(0));
    stack->addWidget(new PatternPage(1));
    stack->resize(200, 120);
    stack->show();
    turn();
    return stack;
}

TEST(SlideLifetime, AnimationHasNoParent)
{
    const auto stack = stackOfTwo();
    const QVariantAnimation* animation = animationOf(*stack);
    EXPECT_EQ(nullptr, animation->parent());
    EXPECT_TRUE(stack->findChildren<QAbstractAnimation*>().isEmpty());
}

TEST(SlideLifetime, AnimationIsKeptWhenItStops)
{
    const auto stack = stackOfTwo();
    const QPointer<QVariantAnimation> animation = animationOf(*stack);
    stack->next();
    animation->setCurrentTime(600);
    turn();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(animation.isNull());
}

TEST(SlideLifetime, AnimationOutlivesTheStack)
{
    auto stack = stackOfTwo();
    const QPointer<QVariantAnimation> animation = animationOf(*stack);
    stack.reset();
    ASSERT_FALSE(animation.isNull());
    delete animation;
}

TEST(SlideLifetime, StackMayGoWhileItSlides)
{
    auto stack = stackOfTwo();
    const QPointer<QVariantAnimation> animation = animationOf(*stack);
    stack->setDuration(60);
    stack->next();
    QTest::qWait(20);
    stack.reset();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return animation->state() == QAbstractAnimation::Stopped; }, 2000));
    turn();
    EXPECT_EQ(0, animation->currentValue().toInt());
}

TEST(SlideLifetime, StackMayGoBetweenTheEndAndTheChangeOfPage)
{
    auto stack = stackOfTwo();
    stack->setDuration(0);
    stack->next();
    stack.reset();
    turn();
    SUCCEED() << "the queued end went with the stack";
}

TEST(SlideLifetime, StackMayGoWithItsParentWhileItSlides)
{
    auto parent = std::make_unique<QWidget>();
    QPointer<ProbedStack> stack = stackOfTwo().release();
    stack->setParent(parent.get());
    stack->next();
    parent.reset();
    QTest::qWait(50);
    EXPECT_TRUE(stack.isNull());
}

struct Loss
{
    const char* name;
    bool leaving;
    bool arriving;
    bool kept; // removed from the stack only
};

void PrintTo(const Loss& loss, std::ostream* out)
{
    *out << loss.name;
}

class LostPage : public StackFixture, public testing::WithParamInterface<Loss>
{
protected:
    void lose(QWidget* lost)
    {
        if (GetParam().kept)
            stack.removeWidget(lost);
        else
            delete lost;
    }

    // From page 2 to page 0 of three, so that the arriving one has the lower number.
    void loseInSlide()
    {
        QVariantAnimation* animation = animationOf(stack);
        stack.setCurrentIndex(2);
        stack.next();
        animation->setCurrentTime(200);
        stack.grab();
        QWidget* arriving = stack.widget(0);
        if (GetParam().leaving)
            lose(stack.widget(2));
        if (GetParam().arriving)
            lose(arriving);
        stack.grab();
        animation->setCurrentTime(600);
        turn();
        stack.grab();
    }
};

TEST_P(LostPage, DoesNoHarm)
{
    loseInSlide();
    const int left = 3 - (GetParam().leaving ? 1 : 0) - (GetParam().arriving ? 1 : 0);
    EXPECT_EQ(left, stack.count());
    ASSERT_NE(nullptr, stack.currentWidget());
    EXPECT_TRUE(stack.currentWidget()->isVisible());
}

TEST_P(LostPage, LeavesTheStackUsable)
{
    loseInSlide();
    stack.addWidget(new PatternPage(3));
    stack.setDuration(0);
    const int before = stack.currentIndex();
    stack.next();
    turn();
    EXPECT_NE(before, stack.currentIndex());
}

INSTANTIATE_TEST_SUITE_P(Pages, LostPage,
                         testing::Values(Loss{"LeavingDeleted", true, false, false},
                                         Loss{"ArrivingDeleted", false, true, false},
                                         Loss{"BothDeleted", true, true, false},
                                         Loss{"LeavingRemoved", true, false, true},
                                         Loss{"ArrivingRemoved", false, true, true}),
                         [](const auto& row) { return row.param.name; });

TEST(SlideLifetime, AllPagesMayGo)
{
    const auto stack = stackOfTwo();
    QVariantAnimation* animation = animationOf(*stack);
    stack->next();
    delete stack->widget(1);
    delete stack->widget(0);
    stack->grab();
    animation->setCurrentTime(600);
    turn();
    EXPECT_EQ(-1, stack->currentIndex());
}

} // namespace
