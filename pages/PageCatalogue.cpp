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
#include "pages/trace/TraceGlyph.h"
#include "pages/trace/TracePage.h"
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
    const char* answers;
};

constexpr Row rows[] = {
    {"registry", QT_TRANSLATE_NOOP("PageCatalogue", "&Registry"), &drawRegistryGlyph,
     &made<RegistryPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "Which keys and values a host library finds in the registry, and what it "
                       "reads from each; entries that it cannot read are marked. Values and keys "
                       "can be changed, imported from registry files and exported to them.")},
    {"profiles", QT_TRANSLATE_NOOP("PageCatalogue", "&Profiles"), &drawProfilesGlyph,
     &made<ProfilesPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "What the wide and the narrow calls read from a private profile (an INI "
                       "file), line by line and side by side, and what a write through either of "
                       "them would make of the file.")},
    {"files", QT_TRANSLATE_NOOP("PageCatalogue", "&Files"), &drawFilesGlyph, &made<FilesPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "Which files a search with findFirstFile finds, with which attributes and "
                       "times, and what the calls for paths and directories answer.")},
    {"fonts", QT_TRANSLATE_NOOP("PageCatalogue", "F&onts"), &drawFontsGlyph, &made<FontsPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "Which fonts host libraries have registered, and which of them an "
                       "enumeration by family and character set finds.")},
    {"displays", QT_TRANSLATE_NOOP("PageCatalogue", "&Displays"), &drawDisplaysGlyph,
     &made<DisplaysPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "Which monitors there are, which of them MonitorFromPoint answers for a "
                       "point, what the system metrics are, and which graphics handles are "
                       "alive.")},
    {"input", QT_TRANSLATE_NOOP("PageCatalogue", "&Input"), &drawInputGlyph, &made<InputPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "Which keys and mouse buttons read as down, where the pointer is, which "
                       "cursor is set, and which window FindWindowW finds.")},
    {"crypto", QT_TRANSLATE_NOOP("PageCatalogue", "&Crypto"), &drawCryptoGlyph, &made<CryptoPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "What texts and files become when they are encrypted, decrypted, digested "
                       "or coded as Base64 in the way of the host libraries.")},
    {"log", QT_TRANSLATE_NOOP("PageCatalogue", "&Log"), &drawLogGlyph, &made<LogPage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "What has happened in this run of the program and in earlier ones, with "
                       "every change that was made from its window.")},
    {"trace", QT_TRANSLATE_NOOP("PageCatalogue", "Tr&ace"), &drawTraceGlyph, &made<TracePage>,
     QT_TRANSLATE_NOOP("PageCatalogue",
                       "What host libraries asked the services for and what they were told, call "
                       "by call, from a recording that may still be written: failures, time, what "
                       "was never given back, and what was asked for and is not there.")},
};

} // namespace

std::vector<PageEntry> pageCatalogue()
{
    std::vector<PageEntry> entries;
    for (const Row& row : rows)
        entries.push_back({QString::fromLatin1(row.name),
                           QCoreApplication::translate("PageCatalogue", row.title), row.glyph,
                           row.create, QCoreApplication::translate("PageCatalogue", row.answers)});
    return entries;
}

QString pageForFile(const QString& path)
{
    if (path.endsWith(QLatin1String(".reg"), Qt::CaseInsensitive))
        return QStringLiteral("registry");
    if (path.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive))
        return QStringLiteral("profiles");
    if (path.endsWith(QLatin1String(".trace"), Qt::CaseInsensitive) ||
        path.endsWith(QLatin1String(".qtrace"), Qt::CaseInsensitive))
        return QStringLiteral("trace");
    return {};
}
