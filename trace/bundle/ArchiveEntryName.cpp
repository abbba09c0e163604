#include "trace/bundle/ArchiveEntryName.h"

#include <QStringList>

#include <algorithm>

namespace trace {

namespace {

bool isSafePart(const QString& part)
{
    return !part.isEmpty() && part != QLatin1String(".") && part != QLatin1String("..");
}

} // namespace

bool isSafeEntryName(const QString& name)
{
    constexpr int longest = 255; // characters; the names of a bundle have some twenty
    const auto isStrange = [](QChar unit) {
        return unit == QLatin1Char('\\') || unit < QLatin1Char(' ');
    };
    if (name.size() > longest || std::any_of(name.begin(), name.end(), isStrange))
        return false;
    const QStringList parts = name.split(QLatin1Char('/'));
    return std::all_of(parts.begin(), parts.end(), isSafePart);
}

} // namespace trace
