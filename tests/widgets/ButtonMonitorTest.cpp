#include "widgets/ButtonMonitor.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>
#include <QCommandLinkButton>
#include <QFocusEvent>
#include <QGraphicsBlurEffect>
#include <QGraphicsDropShadowEffect>
#include <QHoverEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace {

// The class's name as it could be read before main; the monitor precedes other static objects.
const char* const earlyName = g_buttonMonitor.metaObject()->className();

void enter(QWidget& widget)
{
    QEnterEvent event({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(&widget, &event);
}

void leave(QWidget& widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &event);
}

const QGraphicsDropShadowEffect* glowOf(const QWidget& widget)
{
    return qobject_cast<QGraphicsDropShadowEffect*>(widget.graphicsEffect());
}

class Glow : public testing::Test
{
protected:
    Glow() { button.installEventFilter(&g_buttonMonitor); }

    QWidget page;
    QPushButton button{&page};
};

TEST_F(Glow, IsABlueShadowAllAround)
{
    enter(button);
    const QGraphicsDropShadowEffect* glow = glowOf(button);
    ASSERT_NE(nullptr, glow);
    EXPECT_EQ(15.0, glow->blurRadius());
    EXPECT_EQ(QColor(24, 90, 189, 255), glow->color());
    EXPECT_EQ(QStringLiteral("#ff185abd"), glow->color().name(QColor::HexArgb));
    EXPECT_EQ(QPointF(0, 0), glow->offset());
    EXPECT_TRUE(glow->isEnabled());
}

TEST_F(Glow, EndsWithTheLeave)
{
    enter(button);
    const QPointer<QGraphicsEffect> glow = button.graphicsEffect();
    leave(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
    EXPECT_TRUE(glow.isNull());
}

TEST_F(Glow, IsMadeAnewByEveryEnter)
{
    enter(button);
    const QPointer<QGraphicsEffect> first = button.graphicsEffect();
    enter(button);
    EXPECT_TRUE(first.isNull());
    EXPECT_NE(nullptr, glowOf(button));
}

TEST_F(Glow, IsNotGivenToADisabledButton)
{
    button.setEnabled(false);
    enter(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
}

TEST_F(Glow, IsNotGivenToAButtonOnADisabledPage)
{
    page.setEnabled(false);
    enter(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
}

TEST_F(Glow, StaysWithAButtonThatIsDisabledMeanwhile)
{
    enter(button);
    const QPointer<QGraphicsEffect> glow = button.graphicsEffect();
    button.setEnabled(false);
    leave(button);
    EXPECT_EQ(glow, button.graphicsEffect());
    enter(button);
    EXPECT_EQ(glow, button.graphicsEffect()) << "a disabled button gets no new one either";
    leave(button);
    button.setEnabled(true);
    EXPECT_EQ(glow, button.graphicsEffect()) << "enabling alone changes nothing";
    enter(button);
    leave(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
}

TEST_F(Glow, StaysWithAButtonWhosePageIsDisabledMeanwhile)
{
    enter(button);
    page.setEnabled(false);
    leave(button);
    EXPECT_NE(nullptr, glowOf(button));
}

TEST_F(Glow, EndsForAButtonEnabledBeforeTheLeave)
{
    enter(button);
    button.setEnabled(false);
    button.setEnabled(true);
    leave(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
}

TEST_F(Glow, ReplacesAnotherEffectForGood)
{
    const QPointer<QGraphicsEffect> blur = new QGraphicsBlurEffect;
    button.setGraphicsEffect(blur);
    enter(button);
    EXPECT_TRUE(blur.isNull());
    EXPECT_NE(nullptr, glowOf(button));
    leave(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
}

TEST_F(Glow, LeaveTakesAnyEffectAway)
{
    button.setGraphicsEffect(new QGraphicsBlurEffect);
    leave(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
}

TEST_F(Glow, DisabledButtonKeepsAnotherEffect)
{
    const QPointer<QGraphicsEffect> blur = new QGraphicsBlurEffect;
    button.setGraphicsEffect(blur);
    button.setEnabled(false);
    enter(button);
    leave(button);
    EXPECT_EQ(blur, button.graphicsEffect());
}

TEST_F(Glow, IsEachButtonsOwn)
{
    QPushButton other(&page);
    other.installEventFilter(&g_buttonMonitor);
    enter(button);
    EXPECT_EQ(nullptr, other.graphicsEffect());
    enter(other);
    EXPECT_NE(button.graphicsEffect(), other.graphicsEffect());
    leave(button);
    EXPECT_EQ(nullptr, button.graphicsEffect());
    EXPECT_NE(nullptr, glowOf(other));
}

TEST_F(Glow, IsGivenToClassesDerivedFromPushButtons)
{
    QCommandLinkButton link(&page);
    link.installEventFilter(&g_buttonMonitor);
    enter(link);
    EXPECT_NE(nullptr, glowOf(link));
    leave(link);
    EXPECT_EQ(nullptr, link.graphicsEffect());
}

TEST_F(Glow, GoesWithItsButton)
{
    auto* mortal = new QPushButton(&page);
    mortal->installEventFilter(&g_buttonMonitor);
    enter(*mortal);
    const QPointer<QGraphicsEffect> glow = mortal->graphicsEffect();
    delete mortal;
    EXPECT_TRUE(glow.isNull());
}

template <typename T>
class GlowOnOtherWidgets : public testing::Test
{
};

using OtherWidgets = testing::Types<QLabel, QToolButton, QCheckBox, QWidget>;
TYPED_TEST_SUITE(GlowOnOtherWidgets, OtherWidgets);

TYPED_TEST(GlowOnOtherWidgets, DoesNotExist)
{
    TypeParam widget;
    widget.installEventFilter(&g_buttonMonitor);
    enter(widget);
    EXPECT_EQ(nullptr, widget.graphicsEffect());
    const QPointer<QGraphicsEffect> blur = new QGraphicsBlurEffect;
    widget.setGraphicsEffect(blur);
    enter(widget);
    leave(widget);
    EXPECT_EQ(blur, widget.graphicsEffect());
}

class OtherEvent : public Glow, public testing::WithParamInterface<QEvent::Type>
{
};

TEST_P(OtherEvent, LeavesTheEffectAlone)
{
    QEvent event(GetParam());
    EXPECT_FALSE(g_buttonMonitor.eventFilter(&button, &event));
    EXPECT_EQ(nullptr, button.graphicsEffect());
    enter(button);
    const QPointer<QGraphicsEffect> glow = button.graphicsEffect();
    EXPECT_FALSE(g_buttonMonitor.eventFilter(&button, &event));
    EXPECT_FALSE(glow.isNull());
    EXPECT_EQ(glow, button.graphicsEffect());
}

INSTANTIATE_TEST_SUITE_P(Types, OtherEvent,
                         testing::Values(QEvent::None, QEvent::FocusOut, QEvent::Paint,
                                         QEvent::HoverEnter, QEvent::HoverLeave, QEvent::HoverMove,
                                         QEvent::MouseMove, QEvent::MouseButtonPress,
                                         QEvent::DragEnter, QEvent::DragLeave,
                                         QEvent::EnabledChange, QEvent::Show, QEvent::Hide,
                                         QEvent::User));

TEST_F(Glow, FilterSwallowsNothing)
{
    QEvent in(QEvent::Enter);
    QEvent out(QEvent::Leave);
    QLabel label;
    for (QEvent* event : {&in, &out}) {
        EXPECT_FALSE(g_buttonMonitor.eventFilter(&button, event));
        EXPECT_FALSE(g_buttonMonitor.eventFilter(&label, event));
        EXPECT_FALSE(g_buttonMonitor.eventFilter(nullptr, event));
    }
    EXPECT_FALSE(g_buttonMonitor.eventFilter(nullptr, nullptr));
    EXPECT_FALSE(g_buttonMonitor.eventFilter(&label, nullptr));
    EXPECT_FALSE(g_buttonMonitor.eventFilter(&button, nullptr));
}

class RecordingButton : public QPushButton
{
public:
    using QPushButton::QPushButton;
    QList<QEvent::Type> events;

protected:
    bool event(QEvent* event) override
    {
        events.append(event->type());
        return QPushButton::event(event);
    }
};

TEST_F(Glow, ButtonReceivesEveryEvent)
{
    RecordingButton recorder(&page);
    recorder.installEventFilter(&g_buttonMonitor);
    page.show();
    ASSERT_TRUE(waitForExposed(&page));
    const QSignalSpy clicks(&recorder, &QPushButton::clicked);
    recorder.events.clear();
    enter(recorder);
    EXPECT_NE(nullptr, glowOf(recorder)) << "the filter comes first";
    QTest::mouseClick(&recorder, Qt::LeftButton);
    recorder.update();
    QCoreApplication::processEvents();
    leave(recorder);
    for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::MouseButtonPress,
                                    QEvent::MouseButtonRelease, QEvent::Paint})
        EXPECT_TRUE(recorder.events.contains(type)) << type;
    EXPECT_EQ(1, clicks.count());
}

TEST(GlobalButtonMonitor, ExistsBeforeMainWithoutParent)
{
    EXPECT_STREQ("ButtonMonitor", earlyName);
    EXPECT_EQ(nullptr, g_buttonMonitor.parent());
    EXPECT_TRUE(g_buttonMonitor.children().isEmpty());
}

TEST(ButtonMonitorObject, MayHaveAParent)
{
    QPushButton button;
    {
        QObject owner;
        auto* monitor = new ButtonMonitor(&owner);
        EXPECT_EQ(&owner, monitor->parent());
        button.installEventFilter(monitor);
        enter(button);
        EXPECT_NE(nullptr, glowOf(button));
    }
    leave(button);
    EXPECT_NE(nullptr, glowOf(button)) << "nobody watches any more";
}

} // namespace
