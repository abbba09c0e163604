#include "inspection/profiles/ProfileReader.h"

#include "platform/PlatformServicesImp.h"

#include <vector>

namespace {

constexpr std::size_t firstSize = 4096; // characters
constexpr std::size_t growth = 16;      // few calls: each one reads the whole file

// Calls `read` with a zeroed buffer that grows until there is room behind the text: one that fills
// its buffer is cut, and has no terminator of its own.
template <typename Character, typename Read>
std::vector<Character> readWhole(Read read)
{
    for (std::size_t size = firstSize;; size *= growth) {
        std::vector<Character> buffer(size);
        const auto length = read(buffer.data(), static_cast<unsigned int>(size));
        if (length + 1 < size) {
            buffer.resize(length);
            return buffer;
        }
    }
}

} // namespace

ProfileReader::ProfileReader(const QString& file)
    : m_narrowFile(file.toUtf8()), m_wideFile(file.toStdWString())
{
}

QString ProfileReader::narrow(const QString& section, const QString& key) const
{
    const QByteArray sectionName = section.toUtf8();
    const QByteArray keyName = key.toUtf8();
    const auto text = readWhole<char>([&](char* buffer, unsigned int size) {
        return g_PlatformServices.profileManager()->GetPrivateProfileStringA(
            sectionName.constData(), keyName.constData(), "", buffer, size,
            m_narrowFile.constData());
    });
    // Behind another character a byte order mark is a part of the text, as it is for who asks.
    return QString::fromUtf8(' ' + QByteArray(text.data(), static_cast<int>(text.size()))).mid(1);
}

// Found is what does not change with the fallback.
std::optional<QString> ProfileReader::wide(const QString& section, const QString& key) const
{
    const wchar_t* absent = L"\x1";
    const QString text = wideValue(section, key, absent);
    if (text == QString::fromWCharArray(absent) && wideValue(section, key, L"").isEmpty())
        return std::nullopt;
    return text;
}

QString ProfileReader::wideValue(const QString& section, const QString& key,
                                 const wchar_t* fallback) const
{
    const std::wstring sectionName = section.toStdWString();
    const std::wstring keyName = key.toStdWString();
    const auto text = readWhole<wchar_t>([&](wchar_t* buffer, unsigned int size) {
        return g_PlatformServices.profileManager()->GetPrivateProfileStringW(
            sectionName.c_str(), keyName.c_str(), fallback, buffer, size, m_wideFile.c_str());
    });
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size()));
}
