#include "window/GlyphCanvas.h"

#include <QPainter>
#include <QPainterPath>

GlyphCanvas::GlyphCanvas(QPainter& painter, const GlyphColors& colors)
    : m_painter(painter), m_colors(colors)
{
}

void GlyphCanvas::outline(const QRectF& rect, qreal radius)
{
    takePen();
    m_painter.drawRoundedRect(rect, radius, radius);
}

void GlyphCanvas::filled(const QRectF& rect, qreal radius)
{
    takeFill(m_colors.accent);
    m_painter.drawRoundedRect(rect, radius, radius);
}

void GlyphCanvas::line(const QPointF& from, const QPointF& to)
{
    takePen();
    m_painter.drawLine(from, to);
}

void GlyphCanvas::path(const QPainterPath& path)
{
    takePen();
    m_painter.drawPath(path);
}

void GlyphCanvas::polygon(const QVector<QPointF>& corners)
{
    takePen();
    m_painter.drawPolygon(QPolygonF(corners));
}

void GlyphCanvas::dot(const QPointF& centre, qreal radius)
{
    takeFill(m_colors.line);
    m_painter.drawEllipse(centre, radius, radius);
}

void GlyphCanvas::takePen()
{
    constexpr qreal lineWidth = 1.6;
    m_painter.setPen(QPen(m_colors.line, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_painter.setBrush(Qt::NoBrush);
}

void GlyphCanvas::takeFill(const QColor& color)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
}
