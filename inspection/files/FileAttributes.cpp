#include "inspection/files/FileAttributes.h"

namespace {

struct Name
{
    DWORD bit;
    const char* name;
};

constexpr Name names[] = {
    {FILE_ATTRIBUTE_READONLY, "READONLY"}, {FILE_ATTRIBUTE_HIDDEN, "HIDDEN"},
    {FILE_ATTRIBUTE_SYSTEM, "SYSTEM"},     {FILE_ATTRIBUTE_DIRECTORY, "DIRECTORY"},
    {FILE_ATTRIBUTE_ARCHIVE, "ARCHIVE"},   {FILE_ATTRIBUTE_NORMAL, "NORMAL"},
};

} // namespace

QString attributesText(DWORD attributes)
{
    QString text = QStringLiteral("0x%1").arg(attributes, 2, 16, QLatin1Char('0'));
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return text;
    for (const Name& each : names) {
        if ((attributes & each.bit) != 0)
            text += QLatin1Char(' ') + QLatin1String(each.name);
    }
    return text;
}
