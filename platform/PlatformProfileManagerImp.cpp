#include "platform/PlatformProfileManagerImp.h"

#include "platform/profiles/NarrowLines.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/NarrowSearch.h"
#include "platform/profiles/ProfileWriting.h"
#include "platform/profiles/WideProfile.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstring>
#include <cwchar>
#include <new>
#include <optional>
#include <string>

namespace {

// What the operation answers, or `failure` where there is no memory for it: callers know of no
// exceptions. QSettings and the containers of Qt throw this one alone.
template <typename Result, typename Operation>
Result unlessTooLarge(const Result& failure, Operation operation)
{
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        return failure;
    }
}

// Those with a separator in them too, which QSettings takes for keys of groups in the section. The
// section without a name has none: what would be below it are the other sections.
QStringList keysOf(const QSettings& section)
{
    return section.group().isEmpty() ? section.childKeys() : section.allKeys();
}

// QSettings reads a key without a name as "/", and warns of an empty name.
QString valueOf(const QSettings& section, const QString& key)
{
    return section.value(key.isEmpty() ? QStringLiteral("/") : key).toString();
}

// A file that cannot be read has no value.
QByteArray narrowValue(const char* section, const char* key, const char* file)
{
    NarrowProfileFile profileFile(QString::fromUtf8(file));
    NarrowSearch search(narrowHeader(QString::fromUtf8(section)), QString::fromUtf8(key));
    const bool isRead = profileFile.open(QIODevice::ReadOnly) &&
                        profileFile.read([&search](const QString& piece) { search.add(piece); });
    return isRead ? search.finish().toUtf8() : QByteArray();
}

int writeNarrow(const char* section, const char* key, const char* value, const char* file)
{
    const ProfileEntry entry{QString::fromUtf8(section), QString::fromUtf8(key),
                             QString::fromUtf8(value)};
    return ProfileWriting::narrow(QString::fromUtf8(file), {entry}) ? 1 : 0;
}

// The fallback itself where the file cannot be read.
QVariant wideValue(const wchar_t* section, const wchar_t* key, const QVariant& fallback,
                   const wchar_t* file)
{
    WideProfile profile(file);
    if (!profile.isReadable())
        return fallback;
    return profile->value(
        ProfileWriting::wideName(QString::fromWCharArray(section), QString::fromWCharArray(key)),
        fallback);
}

wchar_t* copied(const QString& text, wchar_t* out)
{
    return out + text.toWCharArray(out);
}

// Each entry with a NUL behind it; returns the end.
wchar_t* copiedSection(const wchar_t* section, const wchar_t* file, wchar_t* out)
{
    WideProfile profile(file);
    if (!profile.isReadable())
        return out;
    profile->beginGroup(QString::fromWCharArray(section));
    const QStringList keys = keysOf(*profile);
    for (const QString& key : keys) {
        out = copied(key + QLatin1Char('=') + valueOf(*profile, key), out);
        *out++ = L'\0';
    }
    return out;
}

int writeWide(const wchar_t* section, const wchar_t* key, const wchar_t* value, const wchar_t* file)
{
    const ProfileEntry entry{QString::fromWCharArray(section), QString::fromWCharArray(key),
                             value ? QString::fromWCharArray(value) : QLatin1String("")};
    return ProfileWriting::wide(file, {entry}) ? 1 : 0;
}

} // namespace

unsigned int PlatformProfileManagerImp::GetPrivateProfileStringW(const wchar_t* section,
                                                                 const wchar_t* key,
                                                                 const wchar_t* fallback,
                                                                 wchar_t* buffer, unsigned int size,
                                                                 const wchar_t* file)
{
    if (!section || !key || !buffer || !file || size == 0)
        return 0;
    const std::wstring text = unlessTooLarge(std::wstring(fallback ? fallback : L""), [&] {
        return wideValue(section, key, QString::fromWCharArray(fallback), file)
            .toString()
            .toStdWString();
    });
    // That many bytes, not characters. Intended: callers see the rest of their buffer untouched.
    std::memset(buffer, 0, size);
    std::wcsncpy(buffer, text.c_str(), size - 1);
    return static_cast<unsigned int>(std::wcslen(buffer));
}

unsigned int PlatformProfileManagerImp::GetPrivateProfileStringA(const char* section,
                                                                 const char* key,
                                                                 const char* /*fallback*/,
                                                                 char* buffer, unsigned int size,
                                                                 const char* file)
{
    if (!section || !key || !buffer || !file || size == 0)
        return 0;
    // The fallback does not stand in for a missing value. Intended: callers test for empty text.
    const QByteArray value =
        unlessTooLarge(QByteArray(), [&] { return narrowValue(section, key, file); });
    std::strncpy(buffer, value.constData(), size - 1);
    return static_cast<unsigned int>(std::strlen(buffer));
}

unsigned int PlatformProfileManagerImp::GetPrivateProfileIntW(const wchar_t* section,
                                                              const wchar_t* key, int fallback,
                                                              const wchar_t* file)
{
    if (!section || !key || !file)
        return static_cast<unsigned int>(fallback);
    const int value =
        unlessTooLarge(fallback, [&] { return wideValue(section, key, fallback, file).toInt(); });
    return static_cast<unsigned int>(value);
}

unsigned int PlatformProfileManagerImp::GetPrivateProfileIntA(const char* /*section*/,
                                                              const char* /*key*/, int /*fallback*/,
                                                              const char* /*file*/)
{
    return 0;
}

unsigned int PlatformProfileManagerImp::GetPrivateProfileSectionNamesW(wchar_t* /*buffer*/,
                                                                       unsigned int /*size*/,
                                                                       const wchar_t* /*file*/)
{
    return 0;
}

unsigned int PlatformProfileManagerImp::GetPrivateProfileSectionW(const wchar_t* section,
                                                                  wchar_t* buffer,
                                                                  unsigned int /*size*/,
                                                                  const wchar_t* file)
{
    if (!section || !buffer || !file)
        return 0;
    // The size bounds nothing. Intended.
    wchar_t* end = unlessTooLarge(buffer, [&] { return copiedSection(section, file, buffer); });
    *end++ = L'\0';
    return static_cast<unsigned int>(end - buffer);
}

int PlatformProfileManagerImp::WritePrivateProfileStringW(const wchar_t* section,
                                                          const wchar_t* key, const wchar_t* value,
                                                          const wchar_t* file)
{
    if (!section || !key || !file)
        return 0;
    return unlessTooLarge(0, [&] { return writeWide(section, key, value, file); });
}

int PlatformProfileManagerImp::WritePrivateProfileStringA(const char* section, const char* key,
                                                          const char* value, const char* file)
{
    if (!section || !key || !file)
        return 0;
    return unlessTooLarge(0, [&] { return writeNarrow(section, key, value, file); });
}

int PlatformProfileManagerImp::OpenPrivateProfile(const wchar_t* /*file*/)
{
    return 1;
}

unsigned int PlatformProfileManagerImp::QueryPrivateProfileString(const wchar_t* /*section*/,
                                                                  const wchar_t* /*key*/,
                                                                  const wchar_t* /*fallback*/,
                                                                  wchar_t* /*buffer*/,
                                                                  unsigned int /*size*/)
{
    return 0;
}

int PlatformProfileManagerImp::ClosePrivateProfile()
{
    return 1;
}

void PlatformProfileManagerImp::SetOutQSettings(void* /*settings*/) {}
