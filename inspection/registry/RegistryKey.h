#pragma once

#include "platform/WindowsTypes.h"

#include <QByteArray>
#include <QString>

/// What the registry service answers to the question for a value.
struct RegistryReading
{
    bool readable = false;
    unsigned int type = REG_NONE;
    QByteArray data; ///< as a host library gets it: texts are UTF-32 without a terminator
};

/// A key opened as a host library opens it: every operation is a call of the register manager, and
/// the handle is closed again. All statuses are the service's; 0 is success.
class RegistryKey
{
public:
    /// Opens the key of this path in the store; the empty path is a predefined root.
    explicit RegistryKey(const QString& path);
    ~RegistryKey();

    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    bool isOpen() const { return m_key != nullptr; }

    /// RegQueryValueExW.
    RegistryReading read(const QString& name) const;
    /// RegQueryValueW, which under a root reads the very entry that enumeration lists there, where
    /// RegQueryValueExW reads another one. It tells no type: `readable` and `data` alone are set.
    RegistryReading readListed(const QString& name) const;
    unsigned int set(const QString& name, unsigned int type, const QByteArray& data) const;
    unsigned int removeValue(const QString& name) const;
    unsigned int createKey(const QString& name) const;
    /// Removes the key with everything below it.
    unsigned int removeKey(const QString& name) const;

private:
    HKEY m_key = nullptr;
    bool m_owned = false;
};

/// The text of a REG_SZ's data, and the data of a text with its terminator, ready to be set.
QString registryText(const QByteArray& data);
QByteArray registryTextData(const QString& text);
