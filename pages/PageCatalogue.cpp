#include "window/PageCatalogue.h"

#include "pages/crypto/CryptoPage.h"
#include "pages/displays/DisplaysPage.h"
#include "pages/files/FilesPage.h"
#include "pages/fonts/FontsPage.h"
#include "pages/input/InputPage.h"
#include "pages/log/LogPage.h"
#include "pages/profiles/ProfilesPage.h"
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
    Glyph glyph;
    Page* (*create)(QWidget* parent);
};

constexpr Row rows[] = {
    {"registry", QT_TRANSLATE_NOOP("PageCatalogue", "&Registry"), Glyph::Registry,
     &made<RegistryPage>},
    {"profiles", QT_TRANSLATE_NOOP("PageCatalogue", "&Profiles"), Glyph::Profiles,
     &made<ProfilesPage>},
    {"files", QT_TRANSLATE_NOOP("PageCatalogue", "&Files"), Glyph::Files, &made<FilesPage>},
    {"fonts", QT_TRANSLATE_NOOP("PageCatalogue", "F&onts"), Glyph::Fonts, &made<FontsPage>},
    {"displays", QT_TRANSLATE_NOOP("PageCatalogue", "&Displays"), Glyph::Displays,
     &made<DisplaysPage>},
    {"input", QT_TRANSLATE_NOOP("PageCatalogue", "&Input"), Glyph::Input, &made<InputPage>},
    {"crypto", QT_TRANSLATE_NOOP("PageCatalogue", "&Crypto"), Glyph::Crypto, &made<CryptoPage>},
    {"log", QT_TRANSLATE_NOOP("PageCatalogue", "&Log"), Glyph::Log, &made<LogPage>},
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
