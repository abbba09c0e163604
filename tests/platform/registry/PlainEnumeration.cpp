#include "tests/platform/registry/PlainEnumeration.h"

#include "platform/PlatformRegisterManagerImp.h"

#include <QVariant>

#include <algorithm>
#include <array>
#include <ostream>
#include <tuple>

namespace {

constexpr unsigned int untouched = 7777;
constexpr wchar_t untouchedCharacter = L'#';

using NameBuffer = std::array<wchar_t, 64>;
using DataBuffer = std::array<unsigned char, 16>;

NameBuffer nameBuffer()
{
    NameBuffer buffer;
    buffer.fill(untouchedCharacter);
    return buffer;
}

std::wstring textOf(const NameBuffer& buffer)
{
    return std::wstring(buffer.data(), buffer.size());
}

std::vector<unsigned char> bytesOf(const DataBuffer& buffer)
{
    return std::vector<unsigned char>(buffer.begin(), buffer.end());
}

unsigned int lengthOf(const QString& name)
{
    return static_cast<unsigned int>(name.toStdWString().size());
}

// Writes a name as the calls do.
unsigned int writeName(const QString& name, NameBuffer& buffer)
{
    const std::wstring text = name.toStdWString();
    std::copy(text.begin(), text.end(), buffer.begin());
    return lengthOf(name);
}

bool isHandle(HKEY key)
{
    return key != HKEY_CURRENT_USER;
}

} // namespace

bool operator==(const EnumerationAnswer& a, const EnumerationAnswer& b)
{
    return std::tie(a.status, a.name, a.numbers, a.data) ==
           std::tie(b.status, b.name, b.numbers, b.data);
}

std::ostream& operator<<(std::ostream& out, const EnumerationAnswer& answer)
{
    out << "status " << answer.status << ", name "
        << QString::fromStdWString(answer.name).toStdString();
    for (const unsigned int number : answer.numbers)
        out << ", " << number;
    return out;
}

EnumerationAnswer askedKey(IPlatformRegisterManager& manager, HKEY key, unsigned int index)
{
    NameBuffer name = nameBuffer();
    unsigned int length = untouched;
    const unsigned int status =
        manager.RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    return {status, textOf(name), {length}, {}};
}

EnumerationAnswer askedValue(IPlatformRegisterManager& manager, HKEY key, unsigned int index)
{
    NameBuffer name = nameBuffer();
    DataBuffer data = {};
    unsigned int length = untouched;
    unsigned int type = untouched;
    unsigned int size = data.size();
    const unsigned int status =
        manager.RegEnumValueW(key, index, name.data(), &length, nullptr, &type, data.data(), &size);
    return {status, textOf(name), {length, type, size}, bytesOf(data)};
}

EnumerationAnswer askedInformation(IPlatformRegisterManager& manager, HKEY key)
{
    std::vector<unsigned int> numbers(5, untouched);
    const unsigned int status =
        manager.RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &numbers[0], &numbers[1], nullptr,
                                 &numbers[2], &numbers[3], &numbers[4], nullptr, nullptr);
    return {status, {}, numbers, {}};
}

PlainEnumeration::PlainEnumeration(QSettings& store, HKEY key)
    : m_store(store), m_group(isHandle(key) ? *static_cast<const QString*>(key) : QString())
{
}

QStringList PlainEnumeration::names(bool values) const
{
    m_store.beginGroup(m_group);
    const QStringList names = values ? m_store.childKeys() : m_store.childGroups();
    m_store.endGroup();
    return names;
}

QVariant PlainEnumeration::entry(const QString& name) const
{
    m_store.beginGroup(m_group);
    const QVariant entry = m_store.value(name.isEmpty() ? QStringLiteral("/") : name);
    m_store.endGroup();
    return entry;
}

EnumerationAnswer PlainEnumeration::key(unsigned int index) const
{
    NameBuffer name = nameBuffer();
    const QStringList all = names(false);
    if (index >= static_cast<unsigned int>(all.size()))
        return {1, textOf(name), {untouched}, {}};
    const unsigned int length = writeName(all.at(static_cast<int>(index)), name);
    return {0, textOf(name), {length}, {}};
}

EnumerationAnswer PlainEnumeration::value(unsigned int index) const
{
    NameBuffer name = nameBuffer();
    DataBuffer data = {};
    unsigned int type = untouched;
    unsigned int size = data.size();
    const QStringList all = names(true);
    if (index >= static_cast<unsigned int>(all.size()))
        return {1, textOf(name), {untouched, type, size}, bytesOf(data)};
    const QString found = all.at(static_cast<int>(index));
    const unsigned int length = writeName(found, name);
    QVariant value = entry(found);
    unsigned int readType = 0;
    const bool isRead = QVarToRegValue(value, &readType, data.data(), &size);
    return {
        isRead ? 0U : 1U, textOf(name), {length, isRead ? readType : type, size}, bytesOf(data)};
}

EnumerationAnswer PlainEnumeration::information() const
{
    const QStringList keys = names(false);
    const QStringList values = names(true);
    unsigned int longestKey = 0;
    for (const QString& name : keys)
        longestKey = std::max(longestKey, lengthOf(name));
    QString longest;
    for (const QString& name : values)
        longest = lengthOf(name) > lengthOf(longest) ? name : longest;
    unsigned int data = 0;
    if (!values.isEmpty()) {
        QVariant value = entry(longest);
        QVarToRegValue(value, nullptr, nullptr, &data);
    }
    return {0,
            {},
            {static_cast<unsigned int>(keys.size()), longestKey,
             static_cast<unsigned int>(values.size()), lengthOf(longest), data},
            {}};
}
