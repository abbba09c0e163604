#include "platform/PlatformRegisterManagerImp.h"

#include "host/HostLibraries.h"
#include "platform/registry/GroupScope.h"
#include "platform/registry/ListingCache.h"

#include <QStringList>
#include <QVariant>

#include <memory>
#include <string>

namespace {

constexpr unsigned int failure = ERROR_INVALID_FUNCTION;

bool isRoot(HKEY key)
{
    return key == HKEY_CLASSES_ROOT || key == HKEY_CURRENT_USER || key == HKEY_LOCAL_MACHINE ||
           key == HKEY_USERS;
}

// The group of a key; empty for a root.
QString groupOf(HKEY key)
{
    return isRoot(key) ? QString() : *static_cast<const QString*>(key);
}

// The group of a key's values. Directly under a root it is named after the value. Intended:
// existing stores hold such values at "name/name".
QString valueGroupOf(HKEY key, const QString& valueName)
{
    return isRoot(key) ? valueName : groupOf(key);
}

QString pathBelow(HKEY parent, const wchar_t* subKey)
{
    const QString name = QString::fromWCharArray(subKey);
    return isRoot(parent) ? name : groupOf(parent) + QLatin1Char('/') + name;
}

QString slashed(QString name)
{
    return name.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

// An entry may have no name, where "\" was given for one. QSettings reads it as "/", and warns of
// an empty name.
QVariant valueOf(const QSettings& store, const QString& name)
{
    return store.value(name.isEmpty() ? QStringLiteral("/") : name);
}

// Neither terminated nor bounded. Intended: callers take the length from the call.
void copyName(const QString& name, wchar_t* buffer, unsigned int* length)
{
    const std::wstring characters = name.toStdWString();
    if (buffer)
        characters.copy(buffer, characters.size());
    if (length)
        *length = static_cast<unsigned int>(characters.size());
}

// Decoding sets the type before it looks at the size; the caller's changes only on success.
unsigned int readValue(QVariant value, unsigned int* type, unsigned char* data,
                       unsigned int* byteCount)
{
    unsigned int found = REG_NONE;
    if (!QVarToRegValue(value, &found, data, byteCount))
        return failure;
    if (type)
        *type = found;
    return ERROR_SUCCESS;
}

// Measured without a buffer and with a size of 0, which only a DWORD passes. Intended.
unsigned int dataLengthOf(QVariant value)
{
    unsigned int length = 0;
    QVarToRegValue(value, nullptr, nullptr, &length);
    return length;
}

void write(unsigned int* result, unsigned int value)
{
    if (result)
        *result = value;
}

} // namespace

PlatformRegisterManagerImp::PlatformRegisterManagerImp() : m_store(g_globalSettings) {}

unsigned int PlatformRegisterManagerImp::RegQueryValueExW(HKEY key, const wchar_t* valueName,
                                                          unsigned int* /*reserved*/,
                                                          unsigned int* type, unsigned char* data,
                                                          unsigned int* byteCount)
{
    const QString name = nameToAsk(key, valueName);
    if (name.isEmpty())
        return failure;
    const GroupScope group(*m_store, valueGroupOf(key, name));
    return readValue(m_store->value(slashed(name)), type, data, byteCount);
}

unsigned int PlatformRegisterManagerImp::RegCreateKeyExW(
    HKEY key, const wchar_t* subKey, unsigned int /*reserved*/, wchar_t* /*keyClass*/,
    unsigned int /*options*/, unsigned int /*access*/, _SECURITY_ATTRIBUTES* /*attributes*/,
    HKEY*& result, unsigned int* /*disposition*/)
{
    return createKey(key, subKey, result);
}

unsigned int PlatformRegisterManagerImp::RegOpenKeyExW(HKEY key, const wchar_t* subKey,
                                                       unsigned int /*options*/,
                                                       unsigned int /*access*/, HKEY* result)
{
    if (!m_store || !key || !result)
        return failure;
    const QString path = pathBelow(key, subKey);
    // Asked before "\" becomes "/". Intended: a key below "\" counts as absent.
    if (!m_store->contains(path)) {
        const GroupScope group(*m_store, path);
        if (m_store->childKeys().isEmpty() && m_store->childGroups().isEmpty()) {
            *result = nullptr;
            return ERROR_FILE_NOT_FOUND;
        }
    }
    *result = std::make_unique<QString>(slashed(path)).release();
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::RegOpenKeyW(HKEY key, const wchar_t* subKey, HKEY* result)
{
    if (!result)
        return ERROR_INVALID_PARAMETER;
    if (subKey && *subKey)
        return RegOpenKeyExW(key, subKey, 0, MAXIMUM_ALLOWED, result);
    *result = key;
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::RegSetValueExW(HKEY key, const wchar_t* valueName,
                                                        unsigned int /*reserved*/,
                                                        unsigned int type,
                                                        const unsigned char* data,
                                                        unsigned int byteCount)
{
    const QString name = nameToAsk(key, valueName);
    if (name.isEmpty())
        return failure;
    QVariant value;
    if (!RegValueToQVar(value, type, data, byteCount) || value.isNull())
        return failure;
    ListingCache::drop();
    const GroupScope group(*m_store, valueGroupOf(key, name));
    m_store->setValue(slashed(name), value);
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::RegCloseKey(HKEY key)
{
    if (!m_store)
        return failure;
    const std::unique_ptr<QString> owned(static_cast<QString*>(key));
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::RegQueryInfoKeyW(
    HKEY key, wchar_t* /*keyClass*/, unsigned int* /*classLength*/, unsigned int* /*reserved*/,
    unsigned int* subKeys, unsigned int* longestSubKey, unsigned int* /*longestClass*/,
    unsigned int* values, unsigned int* longestValueName, unsigned int* longestValueData,
    unsigned int* /*securityDescriptor*/, _FILETIME* /*lastWriteTime*/)
{
    if (!m_store || !key)
        return failure;
    const GroupScope group(*m_store, groupOf(key));
    const auto groups = ListingCache::names(*m_store, ListingCache::Kind::Keys);
    const auto names = ListingCache::names(*m_store, ListingCache::Kind::Values);
    const StoreNames::Longest& longest = names->longest();
    write(subKeys, groups->count());
    write(longestSubKey, groups->longest().length);
    write(values, names->count());
    write(longestValueName, longest.length);
    // Of the value with the longest name, not of the largest value. Intended.
    write(longestValueData,
          names->count() == 0 ? 0 : dataLengthOf(valueOf(*m_store, longest.name)));
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::RegEnumKeyW(HKEY key, unsigned int index, wchar_t* name,
                                                     unsigned int /*capacity*/)
{
    return enumerateKey(key, index, name, nullptr);
}

unsigned int PlatformRegisterManagerImp::RegDeleteKeyW(HKEY key, const wchar_t* subKey)
{
    return deleteKey(key, subKey);
}

unsigned int PlatformRegisterManagerImp::RegDeleteValueW(HKEY key, const wchar_t* valueName)
{
    const QString name = nameToAsk(key, valueName);
    if (name.isEmpty())
        return failure;
    ListingCache::drop();
    const GroupScope group(*m_store, groupOf(key));
    m_store->remove(slashed(name));
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::RegEnumKeyExW(HKEY key, unsigned int index, wchar_t* name,
                                                       unsigned int* nameLength,
                                                       unsigned int* /*reserved*/,
                                                       wchar_t* /*keyClass*/,
                                                       unsigned int* /*classLength*/,
                                                       _FILETIME* /*lastWriteTime*/)
{
    return enumerateKey(key, index, name, nameLength);
}

unsigned int PlatformRegisterManagerImp::RegEnumValueW(HKEY key, unsigned int index, wchar_t* name,
                                                       unsigned int* nameLength,
                                                       unsigned int* /*reserved*/,
                                                       unsigned int* type, unsigned char* data,
                                                       unsigned int* byteCount)
{
    if (!m_store || !key)
        return failure;
    const GroupScope group(*m_store, groupOf(key));
    const auto names = ListingCache::names(*m_store, ListingCache::Kind::Values);
    const QString* found = names->at(index);
    if (!found)
        return failure;
    copyName(*found, name, nameLength);
    return readValue(valueOf(*m_store, *found), type, data, byteCount);
}

unsigned int PlatformRegisterManagerImp::RegQueryValueW(HKEY key, const wchar_t* valueName,
                                                        wchar_t* data, int* byteCount)
{
    const QString name = nameToAsk(key, valueName);
    if (name.isEmpty())
        return failure;
    const GroupScope group(*m_store, groupOf(key));
    return readValue(m_store->value(slashed(name)), nullptr, reinterpret_cast<unsigned char*>(data),
                     reinterpret_cast<unsigned int*>(byteCount));
}

unsigned int PlatformRegisterManagerImp::RegDeleteKeyExW(HKEY key, const wchar_t* subKey,
                                                         unsigned int /*access*/,
                                                         unsigned int /*reserved*/)
{
    return deleteKey(key, subKey);
}

unsigned int PlatformRegisterManagerImp::RegCreateKeyW(HKEY key, const wchar_t* subKey,
                                                       HKEY*& result)
{
    return createKey(key, subKey, result);
}

unsigned int PlatformRegisterManagerImp::RegDeleteKeyAndAllSubkeys(const QString& path)
{
    if (path.isEmpty() || !m_store)
        return 0;
    ListingCache::drop();
    {
        const GroupScope group(*m_store, path);
        const QStringList groups = m_store->childGroups();
        for (const QString& name : groups)
            RegDeleteKeyAndAllSubkeys(name);
        const QStringList names = m_store->childKeys();
        for (const QString& name : names)
            m_store->remove(name);
    }
    m_store->remove(path);
    return 1;
}

QString PlatformRegisterManagerImp::nameToAsk(HKEY key, const wchar_t* name) const
{
    return m_store && key ? QString::fromWCharArray(name) : QString();
}

#if __GNUC__ >= 12
#pragma GCC diagnostic push
// The pointer is meant to dangle: see below.
#pragma GCC diagnostic ignored "-Wdangling-pointer"
#endif
unsigned int PlatformRegisterManagerImp::createKey(HKEY parent, const wchar_t* subKey,
                                                   HKEY*& result)
{
    if (!m_store || !parent)
        return failure;
    const QString path = slashed(pathBelow(parent, subKey));
    ListingCache::drop();
    // Only "\" makes an entry without a name: QSettings refuses an empty one with a warning.
    if (!path.isEmpty() && !m_store->contains(path))
        m_store->setValue(path, QVariant());
    // The handle is lost and the result left dangling. Intended: callers rely on their own handle
    // staying as it was, and open the key afterwards.
    HKEY lost = std::make_unique<QString>(path).release();
    result = &lost;
    return ERROR_SUCCESS;
}
#if __GNUC__ >= 12
#pragma GCC diagnostic pop
#endif

unsigned int PlatformRegisterManagerImp::deleteKey(HKEY parent, const wchar_t* subKey)
{
    const QString name = nameToAsk(parent, subKey);
    if (name.isEmpty())
        return failure;
    const GroupScope group(*m_store, groupOf(parent));
    RegDeleteKeyAndAllSubkeys(slashed(name));
    return ERROR_SUCCESS;
}

unsigned int PlatformRegisterManagerImp::enumerateKey(HKEY key, unsigned int index, wchar_t* name,
                                                      unsigned int* nameLength)
{
    if (!m_store || !key)
        return failure;
    const GroupScope group(*m_store, groupOf(key));
    const auto groups = ListingCache::names(*m_store, ListingCache::Kind::Keys);
    const QString* found = groups->at(index);
    if (!found)
        return failure;
    copyName(*found, name, nameLength);
    return ERROR_SUCCESS;
}
