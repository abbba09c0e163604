#include "widgets/QProgressIndicator.h"

#include "tests/widgets/PatternPage.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTimerEvent>

#include <gtest/gtest.h>

namespace {

// The wheel in whole numbers: hundredths are exact here where the widget works in floating point.
struct Wheel
{
    int outer;
    int height;
    int width;

    explicit Wheel(const QSize& area)
    {
        const int side = qMin(area.width(), area.height()) * 3 / 10;
        outer = qMax(side - 1, 0) / 2;
        height = outer - qMax(side - 1, 0) * 19 / 100;
        width = side <= 32 ? height * 35 / 100 : height * 23 / 100;
    }
};

// The fading in steps of 1/65535, as single precision rounds it: spokes 2 and 10 would have 0xd555
// and 0x2aaa in double.
constexpr ushort alphas[12] = {0xffff, 0xeaaa, 0xd554, 0xbfff, 0xaaaa, 0x9555,
                               0x8000, 0x6aaa, 0x5555, 0x4000, 0x2aab, 0x1555};

// A ground on which a difference of one step shows.
QImage ground(const QSize& size, qreal ratio)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb((x * 5) & 255, (y * 3) & 255, (x + y) & 255);
    }
    image.setDevicePixelRatio(ratio);
    return image;
}

void drawOverlay(QPainter& painter, const QSize& area, qreal ratio)
{
    QPixmap overlay(area * ratio);
    overlay.setDevicePixelRatio(ratio);
    overlay.fill(QColor(0, 0, 0, 150));
    painter.drawPixmap(QRect(QPoint(), area), overlay, QRect(QPoint(), overlay.size()));
}

QImage expectedPicture(const QSize& area, qreal ratio, int angle, const QColor& color)
{
    QImage image = ground(area, ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    drawOverlay(painter, area, ratio);
    const Wheel wheel(area);
    for (int i = 0; i < 12; ++i) {
        QColor faded = color;
        faded.setRgba64(qRgba64(color.rgba64().red(), color.rgba64().green(), color.rgba64().blue(),
                                alphas[i]));
        painter.resetTransform();
        painter.translate((area.width() - 1) / 2, (area.height() - 1) / 2);
        painter.rotate(angle - 30 * i);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(faded, Qt::SolidPattern));
        painter.drawRoundedRect(QRectF(-(wheel.width / 2), -wheel.outer, wheel.width, wheel.height),
                                wheel.width / 2, wheel.width / 2, Qt::AbsoluteSize);
    }
    return image;
}

void tick(QProgressIndicator& indicator, int times = 1)
{
    for (int i = 0; i < times; ++i) {
        QTimerEvent event(4711); // no timer of the indicator's
        QCoreApplication::sendEvent(&indicator, &event);
    }
}

QImage pictureOf(QProgressIndicator& indicator)
{
    QImage image = ground(indicator.size(), indicator.devicePixelRatioF());
    indicator.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

std::string difference(QProgressIndicator& indicator, int angle, const QColor& color)
{
    const QImage expected =
        expectedPicture(indicator.size(), indicator.devicePixelRatioF(), angle, color);
    const QImage picture = pictureOf(indicator);
    if (picture == expected)
        return {};
    return firstDifference(picture, [&](int x, int y) { return expected.pixel(x, y); });
}

class ProgressIndicatorSize : public testing::TestWithParam<QSize>
{
};

TEST_P(ProgressIndicatorSize, GivesTheStatedWheelAtEveryAngle)
{
    QProgressIndicator indicator;
    indicator.resize(GetParam());
    indicator.startAnimation();
    for (int angle = 0; angle < 360; angle += 30) {
        EXPECT_EQ("", difference(indicator, angle, Qt::black)) << "at " << angle;
        tick(indicator);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, ProgressIndicatorSize,
                         testing::Values(QSize(1, 1), QSize(2, 2), QSize(3, 400), QSize(7, 7),
                                         QSize(20, 20), QSize(23, 24), QSize(33, 33), QSize(34, 34),
                                         QSize(50, 51), QSize(60, 40), QSize(100, 100),
                                         QSize(101, 101), QSize(107, 200), // side 32
                                         QSize(109, 120), QSize(110, 110), // sides 32 and 33
                                         QSize(111, 300), QSize(400, 300), QSize(401, 299),
                                         QSize(299, 401), QSize(345, 345)),
                         [](const auto& row) {
                             return std::to_string(row.param.width()) + "x" +
                                    std::to_string(row.param.height());
                         });

class ProgressIndicatorColor : public testing::TestWithParam<QColor>
{
};

TEST_P(ProgressIndicatorColor, IsThatOfTheSpokesButForItsAlpha)
{
    QProgressIndicator indicator;
    indicator.resize(160, 150);
    indicator.setColor(GetParam());
    indicator.setDisplayedWhenStopped(true);
    EXPECT_EQ(GetParam(), indicator.color());
    EXPECT_EQ("", difference(indicator, 0, GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Colors, ProgressIndicatorColor,
                         testing::Values(QColor(Qt::black), QColor(Qt::white), QColor(24, 90, 189),
                                         QColor(255, 0, 0, 128), QColor(10, 200, 30, 0),
                                         QColor(1, 2, 3, 254)));

// The wheel of 400 x 300: the leading spoke is the rectangle (-3, -44, 6, 28) around (199, 149),
// and the overlay leaves 105 of white's 255.
TEST(ProgressIndicatorPaint, DrawsTheLeadingSpokeUpwards)
{
    QWidget parent;
    parent.resize(400, 300);
    QProgressIndicator indicator(&parent);
    indicator.setColor(Qt::red);
    indicator.startAnimation();
    QImage image(indicator.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    indicator.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    const QRgb red = qRgb(255, 0, 0);
    const QRgb dark = qRgb(105, 105, 105);
    struct Row
    {
        int x;
        int y;
        QRgb color;
    };
    for (const Row& row :
         {Row{0, 0, dark}, Row{399, 299, dark}, Row{199, 149, dark}, Row{196, 119, red},
          Row{201, 119, red}, Row{195, 119, dark}, Row{202, 119, dark}, Row{198, 105, red},
          Row{199, 132, red}, Row{199, 104, dark}, Row{199, 133, dark}, Row{196, 105, dark}})
        EXPECT_EQ(row.color == red,
                  qRed(image.pixel(row.x, row.y)) > 200 && qGreen(image.pixel(row.x, row.y)) < 60)
            << row.x << ", " << row.y;
    EXPECT_EQ(dark, image.pixel(0, 0));
    EXPECT_EQ(dark, image.pixel(199, 149));
    EXPECT_EQ(red, image.pixel(199, 119));
}

TEST(ProgressIndicatorPaint, ShowsOnlyTheOverlayAtTheDefaultSize)
{
    QProgressIndicator indicator;
    indicator.startAnimation();
    const qreal ratio = indicator.devicePixelRatioF();
    QImage expected = ground(indicator.size(), ratio);
    QPainter painter(&expected);
    drawOverlay(painter, indicator.size(), ratio);
    painter.end();
    EXPECT_EQ(expected, pictureOf(indicator));
}

TEST(ProgressIndicatorPaint, DoesNothingWhileStopped)
{
    QProgressIndicator indicator;
    indicator.resize(120, 120);
    const QImage untouched = ground(indicator.size(), indicator.devicePixelRatioF());
    EXPECT_EQ(untouched, pictureOf(indicator));
    indicator.startAnimation();
    EXPECT_NE(untouched, pictureOf(indicator));
    indicator.stopAnimation();
    EXPECT_EQ(untouched, pictureOf(indicator));
}

TEST(ProgressIndicatorPaint, GoesOnWhileStoppedWhereItIsToBeDisplayed)
{
    QProgressIndicator indicator;
    indicator.resize(120, 120);
    indicator.setDisplayedWhenStopped(true);
    EXPECT_EQ("", difference(indicator, 0, Qt::black));
    indicator.startAnimation();
    tick(indicator, 2);
    indicator.stopAnimation();
    EXPECT_EQ("", difference(indicator, 60, Qt::black)) << "the wheel stays where it was";
    indicator.setDisplayedWhenStopped(false);
    EXPECT_EQ(ground(indicator.size(), indicator.devicePixelRatioF()), pictureOf(indicator));
}

TEST(ProgressIndicatorPaint, ReturnsToTheFirstPositionAfterTwelveTicks)
{
    QProgressIndicator indicator;
    indicator.resize(120, 120);
    indicator.startAnimation();
    tick(indicator, 11);
    EXPECT_EQ("", difference(indicator, 330, Qt::black));
    tick(indicator);
    EXPECT_EQ("", difference(indicator, 0, Qt::black));
}

TEST(ProgressIndicatorPaint, ReturnsToTheFirstPositionWhenStarted)
{
    QProgressIndicator indicator;
    indicator.resize(120, 120);
    indicator.startAnimation();
    tick(indicator, 5);
    indicator.startAnimation();
    EXPECT_EQ("", difference(indicator, 0, Qt::black)) << "started while running";
    tick(indicator, 5);
    indicator.stopAnimation();
    indicator.startAnimation();
    EXPECT_EQ("", difference(indicator, 0, Qt::black)) << "started anew";
}

TEST(ProgressIndicatorPaint, TurnsWhileStoppedToo)
{
    QProgressIndicator indicator;
    indicator.resize(120, 120);
    indicator.setDisplayedWhenStopped(true);
    tick(indicator);
    EXPECT_EQ("", difference(indicator, 30, Qt::black));
}

TEST(ProgressIndicatorPaint, OfNoExtentIsHarmless)
{
    QWidget parent;
    parent.resize(0, 0);
    QProgressIndicator indicator(&parent);
    indicator.startAnimation();
    QImage image = ground(QSize(10, 10), 1);
    const QImage untouched = image;
    indicator.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    EXPECT_EQ(untouched, image);
}

} // namespace
