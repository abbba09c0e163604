#include "inspection/registry/RegistryFormat.h"

#include "inspection/registry/RegistryKey.h"

#include <QtEndian>

namespace {

constexpr int longestBytes = 64;
constexpr int longestText = 500;

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
    const QByteArray bytes = data.left(sizeof(quint64)).leftJustified(sizeof(quint64), '\0');
    return qFromLittleEndian<quint64>(bytes.constData());
}
