#include "inspection/fonts/FontPreview.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace {

RegisteredFont fontOf(const QString& face)
{
    RegisteredFont font;
    font.face = face;
    font.style = QStringLiteral("Regular");
    font.charSet = GREEK_CHARSET;
    font.italic = true;
    return font;
}

TEST(FontPreview, ShowsAnInstalledFontInItself)
{
    const FontPreview preview;
    const RegisteredFont font = fontOf(QFontDatabase().families().constFirst());
    EXPECT_TRUE(preview.isInstalled(font));
    EXPECT_EQ(preview.sample(font), QFontDatabase::writingSystemSample(QFontDatabase::Greek));
    EXPECT_EQ(preview.font(font).family(), font.face);
    EXPECT_EQ(preview.font(font).styleName(), font.style);
    EXPECT_TRUE(preview.font(font).italic());
}

TEST(FontPreview, TellsThatAFontIsNotInstalled)
{
    const FontPreview preview;
    const RegisteredFont font = fontOf(QStringLiteral("No such font"));
    EXPECT_FALSE(preview.isInstalled(font));
    EXPECT_EQ(preview.sample(font), "(not installed on this system)");
    EXPECT_EQ(preview.font(font), QGuiApplication::font());
}

} // namespace
