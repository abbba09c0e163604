#include "app/frame/GlyphIcon.h"

#include "app/frame/GlyphPainter.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace {

GlyphColors colors(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected) {
        const QColor& line = palette.color(QPalette::HighlightedText);
        QColor accent = line;
        accent.setAlphaF(0.4);
        return {line, accent};
    }
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return {palette.color(group, QPalette::WindowText), palette.color(group, QPalette::Highlight)};
}

class GlyphEngine : public QIconEngine
{
public:
    explicit GlyphEngine(Glyph glyph) : m_glyph(glyph) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override
    {
        paintGlyph(*painter, rect, m_glyph, colors(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new GlyphEngine(*this); }

private:
    Glyph m_glyph;
};

} // namespace

QIcon glyphIcon(Glyph glyph)
{
    return QIcon(new GlyphEngine(glyph));
}
