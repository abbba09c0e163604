#include "window/GlyphIcon.h"

#include "window/GlyphPainter.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

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
    explicit GlyphEngine(GlyphDrawing drawing) : m_drawing(drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override
    {
        paintGlyph(*painter, rect, m_drawing, colors(mode));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        const QString key = cacheKey(size, mode);
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        {
            QPainter painter(&pixmap);
            paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        }
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QIconEngine* clone() const override { return new GlyphEngine(*this); }

private:
    // The colours are part of the key, because they change with the palette.
    QString cacheKey(const QSize& size, QIcon::Mode mode) const
    {
        const GlyphColors in = colors(mode);
        return QStringLiteral("quayside-glyph-%1-%2x%3-%4-%5")
            .arg(reinterpret_cast<quintptr>(m_drawing))
            .arg(size.width())
            .arg(size.height())
            .arg(in.line.rgba(), 0, 16)
            .arg(in.accent.rgba(), 0, 16);
    }

    GlyphDrawing m_drawing;
};

} // namespace

QIcon glyphIcon(GlyphDrawing drawing)
{
    return QIcon(new GlyphEngine(drawing));
}

QIcon glyphIcon(Glyph glyph)
{
    return glyphIcon(glyphDrawing(glyph));
}
