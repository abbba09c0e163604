#pragma once

#include "platform/registry/StoredTag.h"

#include <QCoreApplication>

class QVariant;

/// An entry of the settings store as the registry service reads it, with the reason why it reads
/// nothing, or something other than stands there. The reason is only looked for when it is asked
/// for.
class StoredValue
{
    Q_DECLARE_TR_FUNCTIONS(StoredValue)

public:
    enum class Remark
    {
        None,
        // Read as something else.
        BadNumber,
        BadDigits,
        MissingDigit,
        // Refused.
        NoValue,
        List,
        NoTag,
        TagIsNoNumber,
        UnknownTag,
    };

    /// Decodes an entry; a null one is the mark of a created key.
    explicit StoredValue(const QVariant& entry);

    /// False where the service refuses the entry. Nothing but the explanation is of use then.
    bool isReadable() const { return m_tag != nullptr; }
    /// The Windows type.
    unsigned int type() const { return m_tag->type; }
    /// As a host library gets it: numbers in 4 or 8 bytes, texts in UTF-32 without a terminator.
    QByteArray data() const;

    /// Writes the data into a caller's buffer of `size` bytes and its length into `size`, as
    /// QVarToRegValue() tells; both may be null. False, with nothing written, where the size does
    /// not suffice.
    bool copyTo(unsigned char* data, unsigned int* size) const;

    Remark remark() const;
    /// The remark in words; empty for None.
    QString explanation() const;

private:
    QStringRef tagText() const { return m_text.leftRef(m_separator); }
    QStringRef payload() const { return m_text.midRef(m_separator + 1); }
    Remark refusal() const;

    bool m_isNull;
    bool m_isList = false; ///< only told of an entry that is refused
    QString m_text;
    int m_separator = -1;             ///< where it stands in the text, or -1
    const StoredTag* m_tag = nullptr; ///< null where the entry is refused
    StoredData m_data;
};
