// How registry values are kept as text in the settings store: a type tag, "$" and a payload.

#include "platform/PlatformRegisterManagerImp.h"

#include <QVariant>
#include <QtEndian>

#include <cstring>
#include <string>

namespace {

constexpr QChar separator = QLatin1Char('$');

// 3 is taken by no type.
enum ValueTag : int
{
    FormerDwordTag = 0, // no longer written
    DwordTag = 1,
    QwordTag = 2,
    BinaryTag = 4,
    TextTag = 5
};

QVariant encoded(ValueTag tag, const QString& payload)
{
    return QString(QString::number(tag) + separator + payload);
}

// Of anything but 4 bytes only the first one counts. Intended: existing stores were written so.
quint32 dwordOf(const unsigned char* data, unsigned int size)
{
    return size == sizeof(quint32) ? qFromLittleEndian<quint32>(data) : data[0];
}

// The data of a value need not be aligned for characters.
QString textOf(const unsigned char* data)
{
    std::wstring text;
    for (;; data += sizeof(wchar_t)) {
        wchar_t character = 0;
        std::memcpy(&character, data, sizeof character);
        if (character == 0)
            return QString::fromStdWString(text);
        text += character;
    }
}

QString hexOf(const unsigned char* data, unsigned int size)
{
    const char* bytes = reinterpret_cast<const char*>(data);
    return QString::fromLatin1(QByteArray::fromRawData(bytes, static_cast<int>(size)).toHex());
}

void setType(unsigned int* type, unsigned int value)
{
    if (type)
        *type = value;
}

void copyOut(const void* source, unsigned int length, unsigned char* data, unsigned int* size)
{
    if (data && length > 0)
        std::memcpy(data, source, length);
    if (size)
        *size = length;
}

bool decodeDword(const QStringRef& payload, unsigned char* data, unsigned int* size)
{
    const int number = payload.toInt(); // 0 when it does not fit
    // Without a buffer its size does not matter. Intended: only a DWORD can be measured with 0.
    if (data && size && *size < sizeof number)
        return false;
    copyOut(&number, sizeof number, data, size);
    return true;
}

bool decodeQword(const QStringRef& payload, unsigned char* data, unsigned int* size)
{
    const qint64 number = payload.toLongLong();
    if (size && *size < sizeof number)
        return false;
    copyOut(&number, sizeof number, data, size);
    return true;
}

bool decodeBinary(const QStringRef& payload, unsigned char* data, unsigned int* size)
{
    const QByteArray bytes = QByteArray::fromHex(payload.toLatin1());
    const auto length = static_cast<unsigned int>(bytes.size());
    if (size && length > *size)
        return false;
    copyOut(bytes.constData(), length, data, size);
    return true;
}

bool decodeText(const QStringRef& payload, unsigned char* data, unsigned int* size)
{
    const QVector<uint> characters = payload.toUcs4();
    const auto length = static_cast<unsigned int>(characters.size()) * sizeof(uint);
    // Room for a terminator is demanded, yet none is written. Intended.
    if (size && length >= *size)
        return false;
    copyOut(characters.constData(), static_cast<unsigned int>(length), data, size);
    return true;
}

} // namespace

bool RegValueToQVar(QVariant& out, unsigned int type, const unsigned char* data, unsigned int size)
{
    if (!data)
        return false;
    switch (type) {
    case REG_NONE:
    case REG_DWORD: out = encoded(DwordTag, QString::number(dwordOf(data, size))); return true;
    case REG_SZ: out = encoded(TextTag, textOf(data)); return true;
    case REG_BINARY:
        if (size == 0)
            return false;
        out = encoded(BinaryTag, hexOf(data, size));
        return true;
    // The first byte alone, whatever the size. Intended: existing stores were written so.
    case REG_QWORD: out = encoded(QwordTag, QString::number(data[0])); return true;
    default: return false;
    }
}

bool QVarToRegValue(QVariant& value, unsigned int* type, unsigned char* data, unsigned int* size)
{
    if (value.isNull())
        return false;
    const QString text = value.toString();
    const int end = text.indexOf(separator);
    bool isNumber = false;
    const int tag = text.leftRef(qMax(end, 0)).toInt(&isNumber);
    if (!isNumber)
        return false;
    const QStringRef payload = text.midRef(end + 1);
    switch (tag) {
    case FormerDwordTag:
    case DwordTag: setType(type, REG_DWORD); return decodeDword(payload, data, size);
    case QwordTag: setType(type, REG_QWORD); return decodeQword(payload, data, size);
    case BinaryTag: setType(type, REG_BINARY); return decodeBinary(payload, data, size);
    case TextTag: setType(type, REG_SZ); return decodeText(payload, data, size);
    default: return false;
    }
}
