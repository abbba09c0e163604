#include "window/PageCatalogue.h"

#include "pages/crypto/CryptoGlyph.h"
#include "pages/crypto/CryptoPage.h"
#include "pages/displays/DisplaysGlyph.h"
#include "pages/displays/DisplaysPage.h"
#include "pages/files/FilesGlyph.h"
#include "pages/files/FilesPage.h"
#include "pages/fonts/FontsGlyph.h"
#include "pages/fonts/FontsPage.h"
#include "pages/input/InputGlyph.h"
#include "pages/input/InputPage.h"
#include "pages/log/LogGlyph.h"
#include "pages/log/LogPage.h"
#include "pages/profiles/ProfilesGlyph.h"
#include "pages/profiles/ProfilesPage.h"
#include "pages/registry/RegistryGlyph.h"
#include "pages/registry/RegistryPage.h"
#include "window/Page.h"

#include <QCoreApplication>

namespace {

template <typename P>
Page* made(QWidget* parent)
{
    return new P(parent);
}

struct Row
{
    const char* name;
    const char* title;
    GlyphDrawing glyph;
    Page* (*create)(QWidget* parent);
};

constexpr Row rows[] = {
    {"registry", QT_TRANSLATE_NOOP("PageCatalogue", "&Registry"), &drawRegistryGlyph,
     &made<RegistryPage>},
    {"profiles", QT_TRANSLATE_NOOP("PageCatalogue", "&Profiles"), &drawProfilesGlyph,
     &made<ProfilesPage>},
    {"files", QT_TRANSLATE_NOOP("PageCatalogue", "&Files"), &drawFilesGlyph, &made<FilesPage>},
    {"fonts", QT_TRANSLATE_NOOP("PageCatalogue", "F&onts"), &drawFontsGlyph, &made<FontsPage>},
    {"displays", QT_TRANSLATE_NOOP("PageCatalogue", "&Displays"), &drawDisplaysGlyph,
     &made<DisplaysPage>},
    {"input", QT_TRANSLATE_NOOP("PageCatalogue", "&Input"), &drawInputGlyph, &made<InputPage>},
    {"crypto", QT_TRANSLATE_NOOP("PageCatalogue", "&Crypto"), &drawCryptoGlyph, &made<CryptoPage>},
    {"log", QT_TRANSLATE_NOOP("PageCatalogue", "&Log"), &drawLogGlyph, &made<LogPage>},
};

} // namespace

std::vector<PageEntry> pageCatalogue()
{
    std::vector<PageEntry> entries;
    for (const Row& row : rows)
        entries.push_back({QString::fromLatin1(row.name),
                           QCoreApplication::translate("PageCatalogue", row.title), row.glyph,
                           row.create});
    return entries;
}

QString pageForFile(const QString& path)
{
    if (path.endsWith(QLatin1String(".reg"), Qt::CaseInsensitive))
        return QStringLiteral("registry");
    if (path.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive))
        return QStringLiteral("profiles");
    return {};
}
