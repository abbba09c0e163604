#include "platform/PlatformProfileManagerImp.h"

#include "platform/profiles/NarrowProfile.h"
#include "platform/profiles/NarrowProfileFile.h"

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstring>
#include <cwchar>
#include <string>

namespace {

// One file as the wide calls see it, for the length of one call. Saved when it is destroyed.
class WideProfile
{
public:
    explicit WideProfile(const wchar_t* file)
        : m_settings(QString::fromWCharArray(file), QSettings::IniFormat)
    {
        m_settings.setIniCodec("utf-8"); // before the first read: what is read stays as it is
    }

    QSettings* operator->() { return &m_settings; }
    QSettings& operator*() { return m_settings; }

private:
    QSettings m_settings;
};

QString entryName(const wchar_t* section, const wchar_t* key)
{
    return QString::fromWCharArray(section) + QLatin1Char('/') + QString::fromWCharArray(key);
}

// A header line is kept with its brackets.
QString headerOf(const char* section)
{
    return QLatin1Char('[') + QString::fromUtf8(section) + QLatin1Char(']');
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

wchar_t* copied(const QString& text, wchar_t* out)
{
    return out + text.toWCharArray(out);
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
    WideProfile profile(file);
    const QVariant otherwise = QString::fromWCharArray(fallback);
    const QString text = profile->value(entryName(section, key), otherwise).toString();
    // That many bytes, not characters. Intended: callers see the rest of their buffer untouched.
    std::memset(buffer, 0, size);
    std::wcsncpy(buffer, text.toStdWString().c_str(), size - 1);
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
    NarrowProfileFile profileFile(QString::fromUtf8(file));
    const QString text = profileFile.open(QIODevice::ReadOnly) ? profileFile.text() : QString();
    const NarrowProfile profile(text);
    // The fallback does not stand in for a missing value. Intended: callers test for empty text.
    const QByteArray value = profile.value(headerOf(section), QString::fromUtf8(key)).toUtf8();
    std::strncpy(buffer, value.constData(), size - 1);
    return static_cast<unsigned int>(std::strlen(buffer));
}

unsigned int PlatformProfileManagerImp::GetPrivateProfileIntW(const wchar_t* section,
                                                              const wchar_t* key, int fallback,
                                                              const wchar_t* file)
{
    if (!section || !key || !file)
        return static_cast<unsigned int>(fallback);
    WideProfile profile(file);
    return static_cast<unsigned int>(profile->value(entryName(section, key), fallback).toInt());
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
    WideProfile profile(file);
    profile->beginGroup(QString::fromWCharArray(section));
    const QStringList keys = keysOf(*profile);
    // The size bounds nothing. Intended.
    wchar_t* end = buffer;
    for (const QString& key : keys) {
        end = copied(key + QLatin1Char('=') + valueOf(*profile, key), end);
        *end++ = L'\0';
    }
    *end++ = L'\0';
    return static_cast<unsigned int>(end - buffer);
}

int PlatformProfileManagerImp::WritePrivateProfileStringW(const wchar_t* section,
                                                          const wchar_t* key, const wchar_t* value,
                                                          const wchar_t* file)
{
    if (!section || !key || !file)
        return 0;
    WideProfile profile(file);
    const QString text = value ? QString::fromWCharArray(value) : QLatin1String("");
    profile->setValue(entryName(section, key), text);
    return 1;
}

int PlatformProfileManagerImp::WritePrivateProfileStringA(const char* section, const char* key,
                                                          const char* value, const char* file)
{
    if (!section || !key || !file)
        return 0;
    NarrowProfileFile profileFile(QString::fromUtf8(file));
    if (!profileFile.open(QIODevice::ReadWrite))
        return 0;
    const QString header = headerOf(section);
    const QString name = QString::fromUtf8(key);
    const QString written = QString::fromUtf8(value);
    const QString text = profileFile.text();
    NarrowProfile profile(text);
    profile.setValue(header, name, written);
    profileFile.rewrite(profile.toText());
    return 1;
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
