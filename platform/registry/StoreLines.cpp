#include "platform/registry/StoreLines.h"

#include <QFile>

namespace {

// The others are empty, or begin a section.
bool isEntry(const QByteArray& text, int start)
{
    return text.at(start) != '\n' && text.at(start) != '[';
}

int countEntries(const QByteArray& text)
{
    int entries = 0;
    for (int start = 0; start < text.size(); start = text.indexOf('\n', start) + 1)
        entries += isEntry(text, start) ? 1 : 0;
    return entries;
}

} // namespace

bool mayBeCut(const QString& file, int entries)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        return entries > 0;
    const QByteArray text = input.readAll();
    const bool isLastLineWhole = text.isEmpty() || text.endsWith('\n');
    return !isLastLineWhole || countEntries(text) < entries;
}
