#include "tests/crypto/ObjectLayout.h"
#include "tests/widgets/StackFixture.h"
#include "widgets/ButtonMonitor.h"
#include "widgets/QProgressIndicator.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariantAnimation>

#include <gtest/gtest.h>

namespace {

template <typename T>
class WithoutMetaContent : public testing::Test
{
};

using Plain = testing::Types<QAnimationStackedWidget, ButtonMonitor>;
TYPED_TEST_SUITE(WithoutMetaContent, Plain);

TYPED_TEST(WithoutMetaContent, HasNothingOfItsOwn)
{
    const QMetaObject& meta = TypeParam::staticMetaObject;
    EXPECT_EQ(meta.methodOffset(), meta.methodCount());
    EXPECT_EQ(meta.propertyOffset(), meta.propertyCount());
    EXPECT_EQ(meta.enumeratorOffset(), meta.enumeratorCount());
    EXPECT_EQ(meta.classInfoOffset(), meta.classInfoCount());
    EXPECT_EQ(0, meta.constructorCount());
}

TEST(MetaObject, NamesClassesAndBases)
{
    EXPECT_STREQ("QAnimationStackedWidget", QAnimationStackedWidget::staticMetaObject.className());
    EXPECT_EQ(&QStackedWidget::staticMetaObject,
              QAnimationStackedWidget::staticMetaObject.superClass());
    EXPECT_STREQ("QProgressIndicator", QProgressIndicator::staticMetaObject.className());
    EXPECT_EQ(&QWidget::staticMetaObject, QProgressIndicator::staticMetaObject.superClass());
    EXPECT_STREQ("ButtonMonitor", ButtonMonitor::staticMetaObject.className());
    EXPECT_EQ(&QObject::staticMetaObject, ButtonMonitor::staticMetaObject.superClass());
}

TEST(MetaObject, PassesCallsOnToTheBase)
{
    QAnimationStackedWidget stack;
    stack.addWidget(new QWidget);
    stack.addWidget(new QWidget);
    EXPECT_TRUE(QMetaObject::invokeMethod(&stack, "setCurrentIndex", Q_ARG(int, 1)));
    EXPECT_EQ(1, stack.property("currentIndex").toInt());
    ButtonMonitor monitor;
    EXPECT_TRUE(monitor.setProperty("objectName", "glow"));
    EXPECT_EQ(QStringLiteral("glow"), monitor.objectName());
}

constexpr const QMetaObject& indicatorMeta = QProgressIndicator::staticMetaObject;

TEST(ProgressIndicatorMetaObject, HasItsPropertiesInOrder)
{
    struct Row
    {
        const char* name;
        QVariant::Type type;
    };
    const Row rows[] = {{"delay", QVariant::Int},
                        {"displayedWhenStopped", QVariant::Bool},
                        {"color", QVariant::Color}};
    ASSERT_EQ(3, indicatorMeta.propertyCount() - indicatorMeta.propertyOffset());
    for (int i = 0; i < 3; ++i) {
        const QMetaProperty property = indicatorMeta.property(indicatorMeta.propertyOffset() + i);
        EXPECT_STREQ(rows[i].name, property.name());
        EXPECT_EQ(rows[i].type, property.type()) << rows[i].name;
        EXPECT_TRUE(property.isReadable() && property.isWritable()) << rows[i].name;
        EXPECT_FALSE(property.isResettable() || property.hasNotifySignal()) << rows[i].name;
    }
}

TEST(ProgressIndicatorMetaObject, HasItsSlotsAndNothingElse)
{
    const char* const signatures[] = {"startAnimation()", "stopAnimation()",
                                      "setAnimationDelay(int)", "setDisplayedWhenStopped(bool)",
                                      "setColor(QColor)"};
    ASSERT_EQ(5, indicatorMeta.methodCount() - indicatorMeta.methodOffset());
    for (int i = 0; i < 5; ++i) {
        const QMetaMethod method = indicatorMeta.method(indicatorMeta.methodOffset() + i);
        EXPECT_STREQ(signatures[i], method.methodSignature().constData());
        EXPECT_EQ(QMetaMethod::Slot, method.methodType()) << signatures[i];
        EXPECT_EQ(QMetaMethod::Public, method.access()) << signatures[i];
        EXPECT_EQ(int(QMetaType::Void), method.returnType()) << signatures[i];
    }
    EXPECT_EQ(indicatorMeta.enumeratorOffset(), indicatorMeta.enumeratorCount());
    EXPECT_EQ(indicatorMeta.classInfoOffset(), indicatorMeta.classInfoCount());
    EXPECT_EQ(0, indicatorMeta.constructorCount());
}

TEST(ProgressIndicatorMetaObject, ReadsAndWritesThroughTheProperties)
{
    QProgressIndicator indicator;
    EXPECT_EQ(QVariant(40), indicator.property("delay"));
    EXPECT_EQ(QVariant(false), indicator.property("displayedWhenStopped"));
    EXPECT_EQ(QVariant(QColor(Qt::black)), indicator.property("color"));
    EXPECT_TRUE(indicator.setProperty("delay", 123));
    EXPECT_TRUE(indicator.setProperty("displayedWhenStopped", true));
    EXPECT_TRUE(indicator.setProperty("color", QColor(1, 2, 3, 4)));
    EXPECT_EQ(123, indicator.animationDelay());
    EXPECT_TRUE(indicator.isDisplayedWhenStopped());
    EXPECT_EQ(QColor(1, 2, 3, 4), indicator.color());
}

TEST(ProgressIndicatorMetaObject, CallsTheSlotsByName)
{
    QProgressIndicator indicator;
    EXPECT_TRUE(QMetaObject::invokeMethod(&indicator, "startAnimation"));
    EXPECT_TRUE(indicator.isAnimated());
    EXPECT_TRUE(QMetaObject::invokeMethod(&indicator, "stopAnimation"));
    EXPECT_FALSE(indicator.isAnimated());
}

static_assert(sizeof(ButtonMonitor) == sizeof(QObject), "the monitor has no members");

struct StackLayout
{
    unsigned char base[sizeof(QStackedWidget)];
    const QVariantAnimation* animation;
    int duration;
    int targetIndex;
    bool animating;
    bool fromLeft;
    alignas(QVariant) unsigned char offset[sizeof(QVariant)];
};

static_assert(sizeof(StackLayout) == sizeof(QAnimationStackedWidget));

struct IndicatorLayout
{
    unsigned char base[sizeof(QWidget)];
    int angle;
    int timerId;
    int delay;
    bool displayedWhenStopped;
    alignas(QColor) unsigned char color[sizeof(QColor)];
};

static_assert(sizeof(IndicatorLayout) == sizeof(QProgressIndicator));

// What the bytes of a member hold.
template <typename T>
T memberOf(const unsigned char (&bytes)[sizeof(T)])
{
    T value;
    std::memcpy(static_cast<void*>(&value), bytes, sizeof value);
    return value;
}

using StackObjectLayout = StackFixture;

TEST_F(StackObjectLayout, BeginsWithTheAnimationAndItsDuration)
{
    EXPECT_EQ(600, readLayout<StackLayout>(stack).duration);
    const QVariantAnimation* animation = animationOf(stack);
    stack.setDuration(1234);
    const auto layout = readLayout<StackLayout>(stack);
    EXPECT_EQ(animation, layout.animation);
    EXPECT_EQ(1234, layout.duration);
}

TEST_F(StackObjectLayout, GoesOnWithTheTargetAndTheFlags)
{
    auto layout = readLayout<StackLayout>(stack);
    EXPECT_FALSE(layout.animating);
    EXPECT_FALSE(layout.fromLeft);
    stack.forwardTo(3);
    layout = readLayout<StackLayout>(stack);
    EXPECT_FALSE(layout.animating);
    EXPECT_TRUE(layout.fromLeft);
    stack.nextTo(2);
    layout = readLayout<StackLayout>(stack);
    EXPECT_EQ(2, layout.targetIndex);
    EXPECT_TRUE(layout.animating);
    EXPECT_FALSE(layout.fromLeft);
}

TEST(IndicatorObjectLayout, HoldsItsInitialValues)
{
    const QProgressIndicator indicator;
    const auto layout = readLayout<IndicatorLayout>(indicator);
    EXPECT_EQ(0, layout.angle);
    EXPECT_EQ(-1, layout.timerId);
    EXPECT_EQ(40, layout.delay);
    EXPECT_FALSE(layout.displayedWhenStopped);
    EXPECT_EQ(QColor(Qt::black), memberOf<QColor>(layout.color));
}

TEST(IndicatorObjectLayout, FollowsItsChanges)
{
    QProgressIndicator indicator;
    indicator.setAnimationDelay(50);
    indicator.setDisplayedWhenStopped(true);
    indicator.setColor(QColor(1, 2, 3, 4));
    indicator.startAnimation();
    indicator.timerEvent(nullptr);
    const auto layout = readLayout<IndicatorLayout>(indicator);
    EXPECT_EQ(30, layout.angle);
    EXPECT_GT(layout.timerId, 0);
    EXPECT_EQ(50, layout.delay);
    EXPECT_TRUE(layout.displayedWhenStopped);
    EXPECT_EQ(QColor(1, 2, 3, 4), memberOf<QColor>(layout.color));
}

} // namespace
