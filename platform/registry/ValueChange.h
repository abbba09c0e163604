#pragma once

#include "platform/registry/EncodedValue.h"
#include "platform/registry/StoredValue.h"

#include <QStringList>

#include <optional>

/// What will become of a value when it is set: it is encoded and decoded as the registry service
/// does it, and what comes back is compared with what went in. Nothing is written.
class ValueChange
{
    Q_DECLARE_TR_FUNCTIONS(ValueChange)

public:
    enum class Outcome
    {
        Kept,    ///< a host library will read what was set
        Altered, ///< a host library will read something else
        Refused  ///< nothing will be set
    };

    /// `data` is what RegSetValueExW gets; a text has its terminator.
    ValueChange(unsigned int type, const QByteArray& data);

    Outcome outcome() const;
    /// What will be altered, or why the value is refused, in sentences; empty for Kept.
    QStringList remarks() const;
    /// The text under which it will be kept in the store; empty where it is refused.
    const QString& storedText() const { return m_encoded.text(); }

private:
    bool comesBackWhole(const QByteArray& read) const;
    QString alteration(const QByteArray& read) const;

    unsigned int m_type;
    QByteArray m_data;
    EncodedValue m_encoded;
    std::optional<StoredValue> m_read; ///< nothing where the value is refused
};
