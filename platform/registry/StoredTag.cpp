#include "platform/registry/StoredTag.h"

#include "platform/WindowsTypes.h"

#include <QtEndian>

#include <cstring>
#include <string>

namespace {

// Of anything but 4 bytes only the first one counts. Intended: existing stores were written so.
bool encodeDword(const unsigned char* data, unsigned int size, QString& payload)
{
    payload = QString::number(size == sizeof(quint32) ? qFromLittleEndian<quint32>(data) : data[0]);
    return true;
}

// The first byte alone, whatever the size. Intended: existing stores were written so.
bool encodeQword(const unsigned char* data, unsigned int /*size*/, QString& payload)
{
    payload = QString::number(data[0]);
    return true;
}

bool encodeBinary(const unsigned char* data, unsigned int size, QString& payload)
{
    const auto* bytes = reinterpret_cast<const char*>(data);
    payload = QString::fromLatin1(QByteArray::fromRawData(bytes, static_cast<int>(size)).toHex());
    return size > 0;
}

// Up to the terminator, whatever the size. The data of a value need not be aligned for characters.
bool encodeText(const unsigned char* data, unsigned int /*size*/, QString& payload)
{
    std::wstring text;
    for (;; data += sizeof(wchar_t)) {
        wchar_t character = 0;
        std::memcpy(&character, data, sizeof character);
        if (character == 0)
            break;
        text += character;
    }
    payload = QString::fromStdWString(text);
    return true;
}

// What does not fit is 0.
void decodeDword(const QStringRef& payload, StoredData& data)
{
    data = payload.toInt();
}

void decodeQword(const QStringRef& payload, StoredData& data)
{
    data = payload.toLongLong();
}

void decodeBinary(const QStringRef& payload, StoredData& data)
{
    data = QByteArray::fromHex(payload.toLatin1());
}

void decodeText(const QStringRef& payload, StoredData& data)
{
    data = payload.toUcs4();
}

PayloadFault dwordFault(const QStringRef& payload)
{
    bool fits = false;
    payload.toInt(&fits);
    return fits ? PayloadFault::None : PayloadFault::BadNumber;
}

PayloadFault qwordFault(const QStringRef& payload)
{
    bool fits = false;
    payload.toLongLong(&fits);
    return fits ? PayloadFault::None : PayloadFault::BadNumber;
}

// Bytes that stand there whole are written back with the same digits.
PayloadFault binaryFault(const QStringRef& payload)
{
    const QByteArray digits = payload.toLatin1().toLower();
    const QByteArray read = QByteArray::fromHex(digits).toHex();
    if (read == digits)
        return PayloadFault::None;
    return read == '0' + digits ? PayloadFault::MissingDigit : PayloadFault::BadDigits;
}

PayloadFault noFault(const QStringRef& /*payload*/)
{
    return PayloadFault::None;
}

// 3 is taken by no type, and 0 is a DWORD's former tag. Intended: only a DWORD is measured with a
// size of 0, and a text demands room for a terminator that is not written.
constexpr StoredTag tags[] = {
    {0, REG_DWORD, REG_DWORD, nullptr, decodeDword, dwordFault, false, false},
    {1, REG_DWORD, REG_NONE, encodeDword, decodeDword, dwordFault, false, false},
    {2, REG_QWORD, REG_QWORD, encodeQword, decodeQword, qwordFault, true, false},
    {4, REG_BINARY, REG_BINARY, encodeBinary, decodeBinary, binaryFault, true, false},
    {5, REG_SZ, REG_SZ, encodeText, decodeText, noFault, true, true},
};

} // namespace

const StoredTag* StoredTag::ofNumber(int number)
{
    for (const StoredTag& tag : tags) {
        if (tag.number == number)
            return &tag;
    }
    return nullptr;
}

const StoredTag* StoredTag::ofWrittenType(unsigned int type)
{
    for (const StoredTag& tag : tags) {
        if (tag.encode && (tag.type == type || tag.otherType == type))
            return &tag;
    }
    return nullptr;
}
