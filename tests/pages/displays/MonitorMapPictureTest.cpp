#include "pages/displays/MonitorMap.h"

#include <QImage>
#include <QPalette>
#include <QTest>
#include <QtMath>

#include <gtest/gtest.h>

#include <functional>

namespace {

const QRgb base = qRgb(255, 255, 255);
const QRgb window = qRgb(200, 210, 220);
const QRgb highlight = qRgb(0, 0, 255);
const QRgb text = qRgb(0, 0, 0);

// Two monitors side by side: the first with a bar at its bottom, the second with one on its left.
class MonitorMapPicture : public testing::Test
{
protected:
    MonitorMapPicture()
    {
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::Mid, qRgb(120, 120, 120));
        palette.setColor(QPalette::Highlight, highlight);
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Text, text);
        m_map.setPalette(palette);
        m_map.resize(1000, 500);
        m_monitors[0] = {&m_handles[0], QRect(0, 0, 1920, 1080), QRect(0, 0, 1920, 900),
                         MONITORINFOF_PRIMARY};
        m_monitors[1] = {&m_handles[1], QRect(1920, 0, 1280, 1024), QRect(2100, 0, 1100, 1024), 0};
        m_map.setMonitors(m_monitors);
        // Both outside of the monitors, in the room around them.
        m_map.setPoint({-200, -200});
        m_map.setPointer({-200, 1200});
    }

    QImage picture() { return m_map.grab().toImage(); }
    // A part of the desktop on the picture, without what may be painted on its edge.
    QRect onPicture(const QRect& desktop)
    {
        const QRectF place(m_map.toMap(desktop.topLeft()), m_map.toMap(desktop.bottomRight()));
        return place.toAlignedRect().adjusted(5, 5, -5, -5);
    }
    static bool all(const QImage& picture, const QRect& place,
                    const std::function<bool(QRgb)>& holds)
    {
        EXPECT_TRUE(place.isValid() && picture.rect().contains(place));
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (!holds(picture.pixel(x, y)))
                    return false;
            }
        }
        return true;
    }
    QRgb at(const QPoint& desktop)
    {
        return picture().pixel(m_map.toMap(QPointF(desktop) + QPointF(0.5, 0.5)).toPoint());
    }

    int m_handles[2] = {};
    std::vector<Monitor> m_monitors{2};
    MonitorMap m_map;
};

TEST_F(MonitorMapPicture, TellsTheWorkAreasFromTheBarsBesideThem)
{
    const QImage image = picture();
    const auto isBase = [](QRgb color) { return color == base; };
    const auto isNotBase = [](QRgb color) { return color != base && color != window; };
    // Below the captions.
    EXPECT_TRUE(all(image, onPicture({0, 500, 1920, 400}), isBase));
    EXPECT_TRUE(all(image, onPicture({2100, 500, 1100, 524}), isBase));
    EXPECT_TRUE(all(image, onPicture({0, 900, 1920, 180}), isNotBase));
    EXPECT_TRUE(all(image, onPicture({1920, 0, 180, 1024}), isNotBase));
    // Under the second monitor, which is the lower one.
    EXPECT_TRUE(
        all(image, onPicture({2000, 1100, 1100, 200}), [](QRgb color) { return color == window; }));
}

TEST_F(MonitorMapPicture, IsToScale)
{
    const double scale = (m_map.toMap({1920, 0}).x() - m_map.toMap({0, 0}).x()) / 1920;
    EXPECT_GT(scale, 0.1);
    EXPECT_NEAR((m_map.toMap({0, 1080}).y() - m_map.toMap({0, 0}).y()) / 1080, scale, 1e-9);
    EXPECT_TRUE(m_map.rect().contains(m_map.toMap({0, 0}).toPoint()));
    EXPECT_TRUE(m_map.rect().contains(m_map.toMap({3200, 1080}).toPoint()));
}

TEST_F(MonitorMapPicture, MarksThePrimaryMonitorOnly)
{
    const QImage marked = picture();
    m_monitors[0].flags = 0;
    m_map.setMonitors(m_monitors);
    const QImage unmarked = picture();
    const QRect first = onPicture(m_monitors[0].work);
    EXPECT_NE(marked.copy(first), unmarked.copy(first));
    const QRect second = onPicture(m_monitors[1].work);
    EXPECT_EQ(marked.copy(second), unmarked.copy(second));
}

// Where a longer one does not fit, a shorter one stands, at last the number alone.
TEST_F(MonitorMapPicture, CutsNoCaptionOff)
{
    for (int width = 200; width <= 1000; width += 10) {
        m_map.resize(width, width / 2);
        const QRectF work(m_map.toMap(m_monitors[1].work.topLeft()),
                          m_map.toMap(m_monitors[1].work.bottomRight()));
        const double gap = m_map.fontMetrics().height() / 2.0;
        const QImage image = picture();
        const auto isBase = [](QRgb color) { return color == base; };
        const QRectF room = work.adjusted(gap, gap, -gap, -gap);
        const QRect edge(qCeil(room.right()) - 1, qCeil(room.top()), 1, qFloor(room.height()));
        EXPECT_TRUE(all(image, edge, isBase)) << width;
        EXPECT_FALSE(all(image, work.toAlignedRect().adjusted(5, 5, -5, -5), isBase)) << width;
    }
}

TEST_F(MonitorMapPicture, ShowsThePointerWhereItIs)
{
    const QPoint first(700, 700);
    const QPoint second(2700, 800);
    EXPECT_EQ(at(first), base);
    m_map.setPointer(first);
    EXPECT_EQ(at(first), highlight);
    m_map.setPointer(second);
    EXPECT_EQ(at(first), base);
    EXPECT_EQ(at(second), highlight);
}

TEST_F(MonitorMapPicture, ShowsTheChosenPoint)
{
    const QPoint point(700, 700);
    m_map.setPoint(point);
    EXPECT_EQ(at(point), text);
    m_map.setPoint({900, 700});
    EXPECT_EQ(at(point), base);
}

TEST_F(MonitorMapPicture, FramesTheMonitorThatIsTheAnswer)
{
    const QPoint edges[] = {{1000, 1079}, {2700, 1023}};
    for (int answer = 0; answer < 2; ++answer) {
        m_map.setAnswer(&m_handles[answer]);
        const auto framed = [this](const QPoint& edge) {
            const QPoint place = m_map.toMap(edge).toPoint();
            const QImage image = picture();
            for (int y = place.y() - 3; y <= place.y() + 3; ++y) {
                if (image.pixel(place.x(), y) == highlight)
                    return true;
            }
            return false;
        };
        EXPECT_TRUE(framed(edges[answer]));
        EXPECT_FALSE(framed(edges[1 - answer]));
    }
}

} // namespace
