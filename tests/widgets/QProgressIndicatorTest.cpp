#include "widgets/QProgressIndicator.h"

#include "tests/support/MessageGuard.h"
#include "tests/support/WaitFor.h"

#include <QAbstractEventDispatcher>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using TimerInfo = QAbstractEventDispatcher::TimerInfo;

QList<TimerInfo> timersOf(QObject& object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&object);
}

class CountingIndicator : public QProgressIndicator
{
public:
    using QProgressIndicator::QProgressIndicator;
    int painted = 0;
    int ticks = 0;

    void paintEvent(QPaintEvent* event) override
    {
        ++painted;
        QProgressIndicator::paintEvent(event);
    }

    void timerEvent(QTimerEvent* event) override
    {
        ++ticks;
        QProgressIndicator::timerEvent(event);
    }
};

TEST(ProgressIndicator, StartsStoppedWithItsDefaults)
{
    const QProgressIndicator indicator;
    EXPECT_FALSE(indicator.isAnimated());
    EXPECT_FALSE(indicator.isDisplayedWhenStopped());
    EXPECT_EQ(40, indicator.animationDelay());
    EXPECT_EQ(QColor(Qt::black), indicator.color());
    EXPECT_EQ(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed), indicator.sizePolicy());
    EXPECT_EQ(Qt::NoFocus, indicator.focusPolicy());
    EXPECT_TRUE(indicator.testAttribute(Qt::WA_DeleteOnClose));
}

TEST(ProgressIndicator, HasNoWindowFlags)
{
    QWidget parent;
    const auto* indicator = new QProgressIndicator(&parent);
    EXPECT_EQ(&parent, indicator->parentWidget());
    EXPECT_FALSE(indicator->isWindow());
    EXPECT_EQ(QWidget(&parent).windowFlags(), indicator->windowFlags());
}

TEST(ProgressIndicator, IsTwentyByTwentyWithoutParent)
{
    EXPECT_EQ(QSize(20, 20), QProgressIndicator().size());
}

TEST(ProgressIndicator, TakesTheParentsSizeOnce)
{
    for (const QSize size : {QSize(400, 300), QSize(1, 1), QSize(0, 0), QSize(33, 7)}) {
        QWidget parent;
        parent.resize(size);
        const auto* indicator = new QProgressIndicator(&parent);
        EXPECT_EQ(QRect(QPoint(), size), indicator->geometry());
        parent.resize(500, 500);
        EXPECT_EQ(size, indicator->size());
    }
}

TEST(ProgressIndicator, StaysAsItIsWhenAVisibleParentIsResized)
{
    QWidget parent;
    parent.resize(400, 300);
    const auto* indicator = new QProgressIndicator(&parent);
    parent.show();
    parent.resize(200, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(QSize(400, 300), indicator->size());
}

TEST(ProgressIndicator, IsSquareByPreference)
{
    QWidget parent;
    parent.resize(400, 300);
    const QProgressIndicator indicator(&parent);
    EXPECT_EQ(QSize(20, 20), indicator.sizeHint());
    for (const int width : {-1, 0, 1, 20, 4711})
        EXPECT_EQ(width, indicator.heightForWidth(width));
}

TEST(ProgressIndicator, RunsACoarseTimerOfItsDelay)
{
    QProgressIndicator indicator;
    indicator.startAnimation();
    EXPECT_TRUE(indicator.isAnimated());
    const QList<TimerInfo> timers = timersOf(indicator);
    ASSERT_EQ(1, timers.size());
    EXPECT_EQ(40, timers[0].interval);
    EXPECT_EQ(Qt::CoarseTimer, timers[0].timerType);
}

TEST(ProgressIndicator, KeepsItsOnlyTimerWhenStartedAgain)
{
    QProgressIndicator indicator;
    indicator.startAnimation();
    const int id = timersOf(indicator).value(0, TimerInfo(0, 0, Qt::CoarseTimer)).timerId;
    indicator.startAnimation();
    ASSERT_EQ(1, timersOf(indicator).size());
    EXPECT_EQ(id, timersOf(indicator)[0].timerId);
}

TEST(ProgressIndicator, HasNoTimerOnceStopped)
{
    QProgressIndicator indicator;
    indicator.startAnimation();
    indicator.stopAnimation();
    EXPECT_FALSE(indicator.isAnimated());
    EXPECT_TRUE(timersOf(indicator).isEmpty());
    indicator.stopAnimation(); // a second time does no harm
    EXPECT_FALSE(indicator.isAnimated());
}

TEST(ProgressIndicator, OnlyStoresTheDelayWhileStopped)
{
    QProgressIndicator indicator;
    indicator.setAnimationDelay(70);
    EXPECT_EQ(70, indicator.animationDelay());
    EXPECT_FALSE(indicator.isAnimated());
    EXPECT_TRUE(timersOf(indicator).isEmpty());
    indicator.startAnimation();
    ASSERT_EQ(1, timersOf(indicator).size());
    EXPECT_EQ(70, timersOf(indicator)[0].interval);
}

TEST(ProgressIndicator, TakesANewDelayWhileItRuns)
{
    QProgressIndicator indicator;
    indicator.startAnimation();
    for (const int delay : {100, 3}) {
        indicator.setAnimationDelay(delay);
        EXPECT_TRUE(indicator.isAnimated());
        ASSERT_EQ(1, timersOf(indicator).size());
        EXPECT_EQ(delay, timersOf(indicator)[0].interval);
    }
    indicator.stopAnimation(); // knows the latest timer
    EXPECT_TRUE(timersOf(indicator).isEmpty());
}

// How long the timer will take until it fires, in milliseconds.
int remainingTime(QObject& object)
{
    return QAbstractEventDispatcher::instance()->remainingTime(timersOf(object)[0].timerId);
}

TEST(ProgressIndicator, StartsTheTimeAnewWithTheSameDelay)
{
    QProgressIndicator indicator;
    indicator.setAnimationDelay(1000);
    indicator.startAnimation();
    QTest::qWait(300);
    ASSERT_LT(remainingTime(indicator), 800);
    indicator.setAnimationDelay(1000);
    EXPECT_GT(remainingTime(indicator), 800);
}

TEST(ProgressIndicator, DoesNotStartTheTimeAnewWhenStartedAgain)
{
    QProgressIndicator indicator;
    indicator.setAnimationDelay(1000);
    indicator.startAnimation();
    QTest::qWait(300);
    indicator.startAnimation();
    EXPECT_LT(remainingTime(indicator), 800);
}

TEST(ProgressIndicator, CountsAsAnimatedWithTheTimerThatCouldNotStart)
{
    QProgressIndicator indicator;
    indicator.setAnimationDelay(-1);
    EXPECT_EQ(-1, indicator.animationDelay());
    {
        const ExpectMessage message("negative");
        indicator.startAnimation();
    }
    EXPECT_TRUE(indicator.isAnimated());
    indicator.stopAnimation();
    EXPECT_FALSE(indicator.isAnimated());
}

TEST(ProgressIndicator, TicksWithItsDelay)
{
    CountingIndicator indicator;
    indicator.setAnimationDelay(5);
    indicator.startAnimation();
    EXPECT_TRUE(waitFor([&] { return indicator.ticks >= 13; }));
    indicator.stopAnimation();
    const int ticks = indicator.ticks;
    QTest::qWait(30);
    EXPECT_EQ(ticks, indicator.ticks);
}

struct Repaint
{
    const char* name;
    void (*act)(CountingIndicator&);
    bool repaints;
};

void PrintTo(const Repaint& row, std::ostream* out)
{
    *out << row.name;
}

class ProgressIndicatorRepaint : public testing::TestWithParam<Repaint>
{
};

TEST_P(ProgressIndicatorRepaint, FollowsTheActionOrNot)
{
    QWidget parent;
    parent.resize(100, 100);
    auto* indicator = new CountingIndicator(&parent);
    indicator->setAnimationDelay(1000000);
    indicator->startAnimation();
    parent.show();
    ASSERT_TRUE(waitForExposed(&parent));
    QCoreApplication::processEvents();
    indicator->painted = 0;
    GetParam().act(*indicator);
    QCoreApplication::processEvents();
    EXPECT_EQ(GetParam().repaints ? 1 : 0, indicator->painted);
}

INSTANTIATE_TEST_SUITE_P(
    Actions, ProgressIndicatorRepaint,
    testing::Values(
        Repaint{"Start", [](CountingIndicator& i) { i.startAnimation(); }, false},
        Repaint{"Delay", [](CountingIndicator& i) { i.setAnimationDelay(2000000); }, false},
        Repaint{"Stop", [](CountingIndicator& i) { i.stopAnimation(); }, true},
        Repaint{"Displayed", [](CountingIndicator& i) { i.setDisplayedWhenStopped(true); }, true},
        Repaint{"SameDisplayed", [](CountingIndicator& i) { i.setDisplayedWhenStopped(false); },
                true},
        Repaint{"Color", [](CountingIndicator& i) { i.setColor(Qt::red); }, true},
        Repaint{"SameColor", [](CountingIndicator& i) { i.setColor(Qt::black); }, true},
        Repaint{"Tick",
                [](CountingIndicator& i) {
                    QTimerEvent event(4711);
                    QCoreApplication::sendEvent(&i, &event);
                },
                true}),
    [](const auto& row) { return row.param.name; });

TEST(ProgressIndicator, DeletesItselfWhenClosed)
{
    QWidget parent;
    QPointer<QProgressIndicator> indicator = new QProgressIndicator(&parent);
    parent.show();
    indicator->startAnimation();
    EXPECT_TRUE(indicator->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(indicator.isNull());
}

TEST(ProgressIndicator, MayGoWithItsParentWhileItTurns)
{
    QPointer<QProgressIndicator> indicator;
    {
        QWidget parent;
        indicator = new QProgressIndicator(&parent);
        indicator->setAnimationDelay(1);
        indicator->startAnimation();
        parent.show();
        QTest::qWait(10);
    }
    QTest::qWait(10);
    EXPECT_TRUE(indicator.isNull());
}

} // namespace
