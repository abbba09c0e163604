#include "inspection/registry/RegistryFormat.h"

#include "inspection/registry/RegistryKey.h"

namespace {

constexpr int longestBytes = 64;
constexpr int longestText = 500;

struct TypeName
{
    unsigned int type;
    const char* name;
};

constexpr TypeName typeNames[] = {
    {REG_NONE, "REG_NONE"},
    {REG_SZ, "REG_SZ"},
    {REG_EXPAND_SZ, "REG_EXPAND_SZ"},
    {REG_BINARY, "REG_BINARY"},
    {REG_DWORD, "REG_DWORD"},
    {REG_DWORD_BIG_ENDIAN, "REG_DWORD_BIG_ENDIAN"},
    {REG_LINK, "REG_LINK"},
    {REG_MULTI_SZ, "REG_MULTI_SZ"},
    {REG_RESOURCE_LIST, "REG_RESOURCE_LIST"},
    {REG_FULL_RESOURCE_DESCRIPTOR, "REG_FULL_RESOURCE_DESCRIPTOR"},
    {REG_RESOURCE_REQUIREMENTS_LIST, "REG_RESOURCE_REQUIREMENTS_LIST"},
    {REG_QWORD, "REG_QWORD"},
};

QString numberText(const QByteArray& data)
{
    const quint64 value = RegistryFormat::number(data);
    const int digits = data.size() == 4 ? 8 : 0;
    return QStringLiteral("%1 (0x%2)").arg(value).arg(value, digits, 16, QLatin1Char('0'));
}

QString oneLine(QString text)
{
    const bool cut = text.size() > longestText;
    text.truncate(longestText);
    text.replace(QLatin1Char('\n'), QChar(0x21B5)).remove(QLatin1Char('\r'));
    return cut ? text + QChar(0x2026) : text;
}

QString bytesText(const QByteArray& data)
{
    QString text = QString::fromLatin1(data.left(longestBytes).toHex(' '));
    return data.size() > longestBytes ? text + QLatin1Char(' ') + QChar(0x2026) : text;
}

} // namespace

QString RegistryFormat::typeName(unsigned int type)
{
    for (const TypeName& row : typeNames) {
        if (row.type == type)
            return QString::fromLatin1(row.name);
    }
    return QString::number(type);
}

QString RegistryFormat::data(unsigned int type, const QByteArray& data)
{
    switch (type) {
    case REG_SZ: return oneLine(registryText(data));
    case REG_DWORD:
    case REG_QWORD: return numberText(data);
    default: return bytesText(data);
    }
}

QString RegistryFormat::editable(unsigned int type, const QByteArray& data)
{
    switch (type) {
    case REG_SZ: return registryText(data);
    case REG_DWORD:
    case REG_QWORD: return QString::number(number(data));
    default: return QString::fromLatin1(data.toHex(' '));
    }
}

quint64 RegistryFormat::number(const QByteArray& data)
{
    quint64 value = 0;
    for (int i = qMin(data.size(), 8) - 1; i >= 0; --i)
        value = value << 8 | static_cast<unsigned char>(data.at(i));
    return value;
}
