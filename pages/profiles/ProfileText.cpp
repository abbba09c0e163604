#include "pages/profiles/ProfileText.h"

namespace {

constexpr int longest = 500; // characters: more than a cell shows

} // namespace

QString shownText(QString text)
{
    const bool cut = text.size() > longest;
    text.truncate(longest);
    text.replace(QLatin1Char('\n'), QChar(0x21B5)).replace(QLatin1Char('\t'), QChar(0x21E5));
    return cut ? text + QChar(0x2026) : text;
}
