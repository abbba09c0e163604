#pragma once

#include <QCoreApplication>
#include <QString>

/// The text under which the registry service keeps a value in the settings store, or the reason why
/// it refuses the value.
class EncodedValue
{
    Q_DECLARE_TR_FUNCTIONS(EncodedValue)

public:
    enum class Refusal
    {
        None,
        NoData,
        UnwritableType
    };

    /// `size` is in bytes; `data` may be null. See RegValueToQVar() for how much of it is read.
    EncodedValue(unsigned int type, const unsigned char* data, unsigned int size);

    bool isAccepted() const { return m_isAccepted; }
    /// A tag, "$" and a payload; empty where the value is refused.
    const QString& text() const { return m_text; }

    Refusal refusal() const;
    /// The refusal in words; empty for None.
    QString explanation() const;

private:
    unsigned int m_type;
    bool m_isAccepted = false;
    QString m_text;
};
