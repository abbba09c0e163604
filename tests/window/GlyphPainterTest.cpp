#include "window/GlyphPainter.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

void drawBox(GlyphCanvas& canvas)
{
    canvas.filled({0, 0, GlyphCanvas::side, GlyphCanvas::side}, 0);
}

class GlyphPainterTest : public testing::Test
{
protected:
    GlyphPainterTest() : m_image(60, 40, QImage::Format_ARGB32) { m_image.fill(Qt::white); }

    void paint(const QRect& rect, GlyphDrawing drawing)
    {
        QPainter painter(&m_image);
        paintGlyph(painter, rect, drawing, {Qt::red, Qt::blue});
    }
    QColor at(int x, int y) const { return m_image.pixelColor(x, y); }

    QImage m_image;
};

TEST_F(GlyphPainterTest, PutsASquareIntoTheMiddleOfAWideRectangle)
{
    paint(QRect(10, 10, 40, 20), &drawBox);
    EXPECT_EQ(at(29, 19), QColor(Qt::blue));
    EXPECT_EQ(at(22, 19), QColor(Qt::blue));
    EXPECT_EQ(at(38, 19), QColor(Qt::blue));
    EXPECT_EQ(at(18, 19), QColor(Qt::white));
    EXPECT_EQ(at(42, 19), QColor(Qt::white));
}

TEST_F(GlyphPainterTest, DrawsLinesAndFillsInTheirColours)
{
    paint(QRect(0, 0, 40, 40), [](GlyphCanvas& canvas) {
        canvas.filled({2, 2, 8, 8}, 0);
        canvas.line({2, 18}, {22, 18});
        canvas.dot({18, 6}, 3);
    });
    EXPECT_EQ(at(10, 10), QColor(Qt::blue));
    EXPECT_EQ(at(20, 30), QColor(Qt::red));
    EXPECT_EQ(at(30, 10), QColor(Qt::red));
}

TEST_F(GlyphPainterTest, LeavesThePaintersState)
{
    QPainter painter(&m_image);
    painter.setPen(Qt::green);
    paintGlyph(painter, QRect(10, 10, 20, 20), glyphDrawing(Glyph::Warning), {Qt::red, Qt::blue});
    EXPECT_EQ(painter.pen().color(), QColor(Qt::green));
    EXPECT_TRUE(painter.transform().isIdentity());
}

TEST_F(GlyphPainterTest, HasADrawingOfItsOwnForEachSign)
{
    for (int sign = 0; sign < static_cast<int>(Glyph::Error); ++sign)
        EXPECT_NE(glyphDrawing(static_cast<Glyph>(sign)), glyphDrawing(Glyph::Error)) << sign;
}

} // namespace
