#include "tests/widgets/StackFixture.h"

#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace {

struct Frame
{
    const char* name;
    bool fromLeft;
    QSize leaving;  // the fixed size of that page; empty for none
    QSize largest;  // the arriving page's largest size; empty for none
    QSize narrowed; // the stack's size after the start; empty for unchanged
};

void PrintTo(const Frame& frame, std::ostream* out)
{
    *out << frame.name;
}

class SlideFrame : public StackFixture, public testing::WithParamInterface<Frame>
{
protected:
    void start()
    {
        if (!GetParam().largest.isEmpty())
            page(1).setMaximumSize(GetParam().largest);
        page(1).resize(7, 500); // never shown: whatever size it has is not the stack's
        stack.setMinimumSize(1, 1);
        if (!GetParam().leaving.isEmpty())
            page(0).setFixedSize(GetParam().leaving);
        turn();
        stack.setDuration(1000000);
        if (GetParam().fromLeft)
            stack.forwardTo(1);
        else
            stack.nextTo(1);
        if (!GetParam().narrowed.isEmpty())
            stack.resize(GetParam().narrowed);
    }
};

TEST_P(SlideFrame, ShowsThePagesAbuttingAtTheOffset)
{
    start();
    for (const int offset : {0, 1, 2, 37, 100, 150, 199, 200}) {
        stack.slotValueChanged(offset);
        const QImage picture = stack.grab().toImage();
        EXPECT_EQ(stack.size() * stack.devicePixelRatioF(), picture.size());
        EXPECT_EQ("", firstDifference(picture, slideFrame(0, 1, GetParam().fromLeft, offset)))
            << "at " << offset;
    }
}

TEST_P(SlideFrame, GivesTheArrivingPageTheSizeOfTheStack)
{
    start();
    stack.grab();
    const QSize largest = GetParam().largest;
    EXPECT_EQ(largest.isEmpty() ? stack.size() : largest, page(1).size());
}

constexpr QSize same;

INSTANTIATE_TEST_SUITE_P(
    Frames, SlideFrame,
    testing::Values(Frame{"FromRight", false, same, same, same},
                    Frame{"FromLeft", true, same, same, same},
                    Frame{"SmallLeavingFromRight", false, {90, 50}, same, same},
                    Frame{"SmallLeavingFromLeft", true, {90, 50}, same, same},
                    Frame{"LargeLeavingFromRight", false, {300, 180}, same, same},
                    Frame{"LargeLeavingFromLeft", true, {300, 180}, same, same},
                    Frame{"SmallArrivingFromRight", false, same, {60, 40}, same},
                    Frame{"SmallArrivingFromLeft", true, same, {60, 40}, same},
                    Frame{"NarrowedFromRight", false, same, same, {110, 90}},
                    Frame{"NarrowedFromLeft", true, same, same, {110, 90}},
                    Frame{"NarrowedBesidesLeavingFromRight", false, {200, 120}, same, {110, 90}},
                    Frame{"NarrowedBesidesLeavingFromLeft", true, {200, 120}, same, {110, 90}}),
    [](const auto& row) { return row.param.name; });

using SlidePicture = StackFixture;

// How many pixels are neither red nor blue.
int foreignPixels(const QImage& picture)
{
    const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < plain.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
        count += static_cast<int>(std::count_if(line, line + plain.width(), [](QRgb color) {
            return color != qRgb(255, 0, 0) && color != qRgb(0, 0, 255);
        }));
    }
    return count;
}

class SlideSeam : public testing::Test
{
protected:
    // Sizes that are no whole number of device pixels at a fractional scale.
    SlideSeam()
    {
        fill(stack, Qt::green);
        for (const Qt::GlobalColor color : {Qt::red, Qt::blue}) {
            auto* page = new QWidget;
            page->setAutoFillBackground(true);
            fill(*page, color);
            stack.addWidget(page);
        }
        stack.resize(201, 121);
        stack.show();
        turn();
        stack.setDuration(1000000);
    }

    static void fill(QWidget& widget, const QColor& color)
    {
        QPalette palette;
        palette.setColor(QPalette::Window, color);
        widget.setPalette(palette);
    }

    void expectPagesOnly()
    {
        for (int offset = 1; offset <= 200; ++offset) {
            stack.slotValueChanged(offset);
            EXPECT_EQ(0, foreignPixels(stack.grab().toImage())) << "at " << offset;
        }
    }

    QAnimationStackedWidget stack;
};

TEST_F(SlideSeam, ShowsNothingBetweenThePagesFromTheRight)
{
    stack.nextTo(1);
    expectPagesOnly();
}

TEST_F(SlideSeam, ShowsNothingBetweenThePagesFromTheLeft)
{
    stack.forwardTo(1);
    expectPagesOnly();
}

TEST_F(SlidePicture, OfOnePageShowsItOverItself)
{
    for (const int index : {2, 1})
        stack.removeWidget(stack.widget(index));
    for (const bool fromLeft : {false, true}) {
        if (fromLeft)
            stack.forward();
        else
            stack.next();
        stack.slotValueChanged(70);
        EXPECT_EQ("", firstDifference(stack.grab().toImage(), slideFrame(0, 0, fromLeft, 70)));
        stack.slotAnimationFinished();
        EXPECT_EQ(0, stack.currentIndex());
        EXPECT_TRUE(page(0).isVisible());
    }
}

// The ways in which the window around a stack may be pictured.
QImage grabbed(QWidget& window)
{
    return window.grab().toImage();
}

QImage renderedOnDevice(QWidget& window)
{
    QImage image(window.size() * window.devicePixelRatioF(), QImage::Format_RGB32);
    image.setDevicePixelRatio(window.devicePixelRatioF());
    window.render(&image);
    return image;
}

QImage renderedThroughPainter(QWidget& window)
{
    QImage image(window.size() * window.devicePixelRatioF(), QImage::Format_RGB32);
    image.setDevicePixelRatio(window.devicePixelRatioF());
    QPainter painter(&image);
    window.render(&painter);
    return image;
}

class SlideInWindow : public StackFixture, public testing::WithParamInterface<QImage (*)(QWidget&)>
{
};

TEST_P(SlideInWindow, LooksAsByItself)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(11, 13, 17, 19);
    auto* inner = new QAnimationStackedWidget;
    layout->addWidget(inner);
    inner->addWidget(stack.widget(0));
    inner->addWidget(stack.widget(0));
    inner->setMinimumSize(200, 120);
    window.show();
    turn();
    const auto* leaving = qobject_cast<PatternPage*>(inner->widget(0));
    const auto* arriving = qobject_cast<PatternPage*>(inner->widget(1));
    inner->next();
    inner->slotValueChanged(64);
    const int ratio = qRound(inner->devicePixelRatioF());
    const QRect area(QPoint(11, 13) * ratio, inner->size() * ratio);
    const int line = 64 * ratio;
    EXPECT_EQ("", firstDifference(GetParam()(window).copy(area), [&](int x, int y) {
                  return x < line ? leaving->colorAt(x - line + area.width(), y)
                                  : arriving->colorAt(x - line, y);
              }));
}

INSTANTIATE_TEST_SUITE_P(Pictures, SlideInWindow,
                         testing::Values(grabbed, renderedOnDevice, renderedThroughPainter));

TEST_F(SlidePicture, FollowsChangesOfThePages)
{
    class Counter : public QWidget
    {
    public:
        int painted = 0;

    protected:
        void paintEvent(QPaintEvent* /*event*/) override { ++painted; }
    };
    auto* leaving = new Counter;
    auto* arriving = new Counter;
    stack.insertWidget(0, arriving);
    stack.insertWidget(0, leaving);
    stack.setCurrentIndex(0);
    turn();
    stack.next();
    leaving->painted = 0;
    for (int frame = 1; frame <= 3; ++frame) {
        stack.slotValueChanged(100 - frame);
        stack.grab();
        EXPECT_EQ(frame, leaving->painted);
        EXPECT_EQ(frame, arriving->painted);
    }
}

TEST_F(SlidePicture, ShowsTheStackThroughATransparentPage)
{
    auto* glass = new QWidget;
    glass->setAttribute(Qt::WA_NoSystemBackground);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::transparent);
    glass->setPalette(palette);
    stack.insertWidget(1, glass);
    stack.next();
    stack.slotValueChanged(50);
    const int ratio = qRound(stack.devicePixelRatioF());
    EXPECT_EQ("", firstDifference(stack.grab().toImage(), [&](int x, int y) {
                  return x < 50 * ratio ? page(0).colorAt(x + 150 * ratio, y) : background;
              }));
}

TEST_F(SlidePicture, HasNoFrame)
{
    stack.setFrameStyle(QFrame::Box | QFrame::Plain);
    stack.setLineWidth(5);
    while (stack.count() > 0)
        delete stack.widget(0);
    EXPECT_EQ("", firstDifference(stack.grab().toImage(), [](int, int) { return background; }));
}

TEST_F(SlidePicture, HasNoFrameWhileItSlides)
{
    stack.setFrameStyle(QFrame::Box | QFrame::Plain);
    stack.setLineWidth(5);
    turn();
    EXPECT_EQ(QSize(190, 110), page(0).size()) << "the frame's room is kept";
    stack.next();
    stack.slotValueChanged(50);
    EXPECT_EQ("", firstDifference(stack.grab().toImage(), slideFrame(0, 1, false, 50)));
}

TEST_F(SlidePicture, IsEmptyForAPageWithoutExtent)
{
    stack.next();
    page(0).setFixedSize(0, 0);
    stack.slotValueChanged(50);
    EXPECT_EQ("", firstDifference(stack.grab().toImage(), slideFrame(0, 1, false, 50)));
}

TEST_F(SlidePicture, StepsPaintOneSideEach)
{
    stack.next();
    stack.slotValueChanged(80);
    const int ratio = qRound(stack.devicePixelRatioF());
    const auto frame = slideFrame(0, 1, false, 80);
    const QImage left =
        pictureOfStep([this](QPainter& painter) { stack.paintPrevious(painter, 0); });
    EXPECT_EQ(
        "", firstDifference(left, [&](int x, int y) { return x < 80 * ratio ? frame(x, y) : 0U; }));
    const QImage right = pictureOfStep([this](QPainter& painter) { stack.paintNext(painter, 1); });
    EXPECT_EQ("", firstDifference(right,
                                  [&](int x, int y) { return x < 80 * ratio ? 0U : frame(x, y); }));
}

// The offset that no animation has set yet counts as 0, and the new page arrives from the right.
TEST_F(SlidePicture, StepsPaintTheArrivingPageWholeBeforeAnySlide)
{
    EXPECT_EQ("", firstDifference(
                      pictureOfStep([this](QPainter& painter) { stack.paintNext(painter, 1); }),
                      [this](int x, int y) { return page(1).colorAt(x, y); }));
}

TEST_F(SlidePicture, StepsPaintNothingOfTheLeavingPageBeforeAnySlide)
{
    EXPECT_EQ("", firstDifference(
                      pictureOfStep([this](QPainter& painter) { stack.paintPrevious(painter, 0); }),
                      [](int, int) { return 0U; }));
}

TEST_F(SlidePicture, StepsPaintNothingForAnIndexWithoutPage)
{
    stack.next();
    stack.slotValueChanged(80);
    const QImage picture = pictureOfStep([this](QPainter& painter) {
        for (const int index : {-1, 3}) {
            stack.paintPrevious(painter, index);
            stack.paintNext(painter, index);
        }
    });
    EXPECT_EQ("", firstDifference(picture, [](int, int) { return 0U; }));
}

} // namespace
