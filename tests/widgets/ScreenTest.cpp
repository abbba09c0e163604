#include "tests/support/Display.h"
#include "tests/support/WaitFor.h"
#include "tests/widgets/StackFixture.h"
#include "widgets/QProgressIndicator.h"

#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <set>
#include <vector>

namespace {

QImage pictureOf(const QWidget& window)
{
    return window.screen()->grabWindow(window.winId()).toImage();
}

struct Direction
{
    const char* name;
    void (QAnimationStackedWidget::*request)();
    int arriving;
    bool fromLeft;
};

void PrintTo(const Direction& row, std::ostream* out)
{
    *out << row.name;
}

class SlideOnScreen : public StackFixture, public testing::WithParamInterface<Direction>
{
protected:
    SlideOnScreen() { EXPECT_TRUE(Display::activate(stack)); }

    // Where the pages meet, read off the colour that page 0 shows in its top right corner or its
    // top left one; -1 once it is gone.
    int offsetIn(const QImage& picture) const
    {
        for (int offset = 0; offset <= stack.width(); ++offset) {
            const auto frame = slideFrame(0, GetParam().arriving, GetParam().fromLeft, offset);
            if (picture.pixel(0, 0) == frame(0, 0) && picture.pixel(199, 0) == frame(199, 0))
                return offset;
        }
        return -1;
    }
};

TEST_P(SlideOnScreen, ShowsEveryFrameWhole)
{
    const auto [name, request, arriving, fromLeft] = GetParam();
    (stack.*request)();
    std::vector<int> offsets;
    while (stack.currentIndex() == 0) {
        QTest::qWait(10);
        const QImage picture = pictureOf(stack);
        const int offset = offsetIn(picture);
        ASSERT_GE(offset, 0);
        ASSERT_EQ("", firstDifference(picture, slideFrame(0, arriving, fromLeft, offset)));
        offsets.push_back(offset);
    }
    if (!fromLeft)
        std::reverse(offsets.begin(), offsets.end());
    EXPECT_TRUE(std::is_sorted(offsets.begin(), offsets.end())) << name;
    EXPECT_GE(std::set<int>(offsets.begin(), offsets.end()).size(), 5U);
}

TEST_P(SlideOnScreen, EndsWithTheArrivingPage)
{
    (stack.*GetParam().request)();
    const PatternPage& arriving = page(GetParam().arriving);
    ASSERT_TRUE(waitFor([&] { return stack.currentWidget() == &arriving; }));
    QTest::qWait(100);
    EXPECT_EQ("", firstDifference(pictureOf(stack),
                                  [&](int x, int y) { return arriving.colorAt(x, y); }));
}

INSTANTIATE_TEST_SUITE_P(
    Directions, SlideOnScreen,
    testing::Values(Direction{"Next", &QAnimationStackedWidget::next, 1, false},
                    Direction{"Forward", &QAnimationStackedWidget::forward, 2, true}),
    [](const auto& row) { return row.param.name; });

using StackOnScreen = StackFixture;

TEST_F(StackOnScreen, MayBeClosedAndDestroyedWhileItSlides)
{
    auto* mortal = new QAnimationStackedWidget;
    for (int id = 0; id < 3; ++id)
        mortal->addWidget(new PatternPage(id));
    mortal->resize(300, 200);
    mortal->show();
    ASSERT_TRUE(waitForExposed(mortal));
    mortal->next();
    QTest::qWait(150);
    delete mortal;
    QTest::qWait(700); // until the animation has run out
    EXPECT_TRUE(stack.isVisible());
}

// The first key that a new display gets makes the window manager let go of all its shortcuts and
// take them anew; one that is pressed in between reaches nobody. A user would press it again.
bool closedByKeys(const QPointer<QProgressIndicator>& window)
{
    const auto isGone = [&window] { return window.isNull(); };
    for (int attempt = 0; attempt < 20; ++attempt) {
        if (Display::xdotool({"key", "alt+F4"}) && QTest::qWaitFor(isGone, 1000))
            return true;
    }
    return false;
}

TEST(IndicatorOnScreen, GoesWhenTheUserClosesIt)
{
    QPointer<QProgressIndicator> indicator = new QProgressIndicator;
    indicator->resize(150, 150);
    indicator->startAnimation();
    indicator->show();
    ASSERT_TRUE(Display::activate(*indicator));
    EXPECT_TRUE(closedByKeys(indicator));
}

TEST(IndicatorOnScreen, TurnsOverItsDarkenedParent)
{
    QWidget parent;
    parent.setPalette(QPalette(Qt::white, Qt::white));
    parent.resize(200, 200);
    parent.show();
    ASSERT_TRUE(Display::activate(parent));
    QProgressIndicator indicator(&parent);
    indicator.setColor(Qt::red);
    indicator.startAnimation();
    indicator.show();
    std::set<QByteArray> pictures;
    for (int i = 0; i < 20; ++i) {
        QTest::qWait(30);
        const QImage picture = pictureOf(parent);
        pictures.insert(QByteArray(reinterpret_cast<const char*>(picture.constBits()),
                                   static_cast<int>(picture.sizeInBytes())));
    }
    EXPECT_GE(pictures.size(), 5U);
    EXPECT_LE(pictures.size(), 13U) << "twelve positions, and the one before the first";
    EXPECT_EQ(qRgb(105, 105, 105), pictureOf(parent).pixel(0, 0));
    indicator.stopAnimation();
    QTest::qWait(100);
    EXPECT_EQ(qRgb(255, 255, 255), pictureOf(parent).pixel(0, 0));
}

TEST(IndicatorOnScreen, LeavesTheFocusWhereItIs)
{
    QWidget parent;
    auto* child = new QWidget(&parent);
    child->setFocusPolicy(Qt::StrongFocus);
    parent.resize(200, 200);
    parent.show();
    ASSERT_TRUE(Display::activate(parent));
    child->setFocus();
    QProgressIndicator indicator(&parent);
    indicator.startAnimation();
    indicator.show();
    const QPoint middle = indicator.mapToGlobal(indicator.rect().center());
    ASSERT_TRUE(Display::xdotool({"mousemove", QString::number(middle.x()),
                                  QString::number(middle.y()), "click", "1", "key", "Tab"}));
    QTest::qWait(100);
    EXPECT_TRUE(child->hasFocus());
}

} // namespace
