#include "inspection/log/LogEntry.h"

namespace {

constexpr int mostShown = 1000;

} // namespace

void LogEntry::append(const QString& lines)
{
    text += lines;
    line += lines;
}

QString LogEntry::levelName() const
{
    switch (level) {
    case Level::Debug: return tr("Debug");
    case Level::Info: return tr("Information");
    case Level::Warning: return tr("Warning");
    case Level::Error: return tr("Error");
    case Level::None: break;
    }
    return {};
}

QString LogEntry::beginning() const
{
    if (text.size() <= mostShown)
        return text;
    const bool splitsPair = text.at(mostShown - 1).isHighSurrogate();
    return text.left(splitsPair ? mostShown - 1 : mostShown) + QChar(0x2026);
}

QString LogEntry::beginningInOneLine() const
{
    return beginning().replace(u'\n', QChar(0x21B5));
}
