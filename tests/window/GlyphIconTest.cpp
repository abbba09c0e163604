#include "window/GlyphIcon.h"

#include "window/PageCatalogue.h"

#include <QApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace {

struct NamedGlyph
{
    std::string name;
    QIcon (*icon)(std::size_t index);
    std::size_t index;
};

void PrintTo(const NamedGlyph& glyph, std::ostream* out)
{
    *out << glyph.name;
}

// The signs that pages share, and the glyph of each page.
std::vector<NamedGlyph> allGlyphs()
{
    std::vector<NamedGlyph> all;
    for (std::size_t sign = 0; sign <= static_cast<std::size_t>(Glyph::Error); ++sign)
        all.push_back({"Sign" + std::to_string(sign),
                       [](std::size_t index) { return glyphIcon(static_cast<Glyph>(index)); },
                       sign});
    const std::vector<PageEntry> pages = pageCatalogue();
    for (std::size_t page = 0; page < pages.size(); ++page)
        all.push_back({pages[page].name.toStdString(),
                       [](std::size_t index) { return glyphIcon(pageCatalogue()[index].glyph); },
                       page});
    return all;
}

class EveryGlyph : public testing::TestWithParam<NamedGlyph>
{
protected:
    QIcon icon() const { return GetParam().icon(GetParam().index); }
};

TEST_P(EveryGlyph, IsPaintedCrisplyAtEverySize)
{
    for (const int side : {16, 24, 48, 72}) {
        const QImage image = icon().pixmap(side, side).toImage();
        EXPECT_EQ(image.size(), QSize(side, side));
        int painted = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x)
                painted += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
        }
        EXPECT_GT(painted, side * side / 20);
        EXPECT_LT(painted, side * side);
    }
}

TEST_P(EveryGlyph, LeavesTheEdgeOfItsSquareFree)
{
    const QImage image = icon().pixmap(48, 48).toImage();
    for (int at = 0; at < 48; ++at) {
        for (const QPoint point : {QPoint(at, 0), QPoint(at, 47), QPoint(0, at), QPoint(47, at)})
            EXPECT_EQ(image.pixelColor(point).alpha(), 0) << point.x() << ", " << point.y();
    }
}

INSTANTIATE_TEST_SUITE_P(GlyphIcon, EveryGlyph, testing::ValuesIn(allGlyphs()),
                         [](const auto& row) { return row.param.name; });

// The palette of the application, put back at the end.
class GlyphIconTest : public testing::Test
{
protected:
    ~GlyphIconTest() override { QApplication::setPalette(m_before); }

    static QImage image(const QIcon& icon, QIcon::Mode mode = QIcon::Normal)
    {
        return icon.pixmap(24, 24, mode).toImage();
    }

    const QPalette m_before = QApplication::palette();
    const QIcon m_icon = glyphIcon(Glyph::Text);
};

TEST_F(GlyphIconTest, FollowsThePalette)
{
    const QImage light = image(m_icon);
    QPalette dark = m_before;
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Highlight, Qt::yellow);
    QApplication::setPalette(dark);
    EXPECT_NE(image(m_icon), light);
    QApplication::setPalette(m_before);
    EXPECT_EQ(image(m_icon), light);
}

TEST_F(GlyphIconTest, LooksDifferentWhereItIsSelectedOrDisabled)
{
    EXPECT_NE(image(m_icon, QIcon::Selected), image(m_icon));
    EXPECT_NE(image(m_icon, QIcon::Disabled), image(m_icon));
}

// Drawings share a cache of pictures.
TEST_F(GlyphIconTest, IsNotTakenForAnotherGlyph)
{
    EXPECT_NE(image(glyphIcon(Glyph::Number)), image(m_icon));
    EXPECT_EQ(image(glyphIcon(Glyph::Text)), image(m_icon));
}

} // namespace
