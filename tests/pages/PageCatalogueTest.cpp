#include "window/PageCatalogue.h"

#include "window/GlyphIcon.h"
#include "window/Page.h"

#include <QImage>
#include <QKeySequence>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

TEST(PageCatalogue, GivesEachPageANameOfItsOwnThatCanBeTyped)
{
    const QRegularExpression word(QStringLiteral("^[a-z]+$"));
    QSet<QString> names;
    for (const PageEntry& page : pageCatalogue()) {
        EXPECT_TRUE(word.match(page.name).hasMatch()) << page.name.toStdString();
        EXPECT_FALSE(names.contains(page.name)) << page.name.toStdString();
        names.insert(page.name);
    }
    EXPECT_FALSE(names.isEmpty());
}

TEST(PageCatalogue, GivesEachTitleALetterOfItsOwn)
{
    QSet<QString> letters;
    for (const PageEntry& page : pageCatalogue()) {
        const QString letter = QKeySequence::mnemonic(page.title).toString();
        EXPECT_FALSE(letter.isEmpty()) << page.title.toStdString();
        EXPECT_FALSE(letters.contains(letter)) << page.title.toStdString();
        letters.insert(letter);
    }
}

// Alt and a digit choose a page.
TEST(PageCatalogue, HasADigitForEachPage)
{
    EXPECT_LE(pageCatalogue().size(), 9U);
}

TEST(PageCatalogue, GivesEachPageAGlyphOfItsOwn)
{
    std::vector<QImage> drawn;
    for (const PageEntry& page : pageCatalogue()) {
        drawn.push_back(glyphIcon(page.glyph).pixmap(24, 24).toImage());
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), drawn.back()), 1)
            << page.name.toStdString();
    }
}

TEST(PageCatalogue, MakesAPageThatBelongsToItsParent)
{
    for (const PageEntry& page : pageCatalogue()) {
        QWidget parent;
        const Page* made = page.create(&parent);
        ASSERT_TRUE(made) << page.name.toStdString();
        EXPECT_EQ(made->parentWidget(), &parent) << page.name.toStdString();
        EXPECT_TRUE(made->focusProxy()) << page.name.toStdString();
    }
}

} // namespace
