#pragma once

#include <QByteArray>

/// What a line of a profile says to somebody who reads it, whatever the families make of it.
class WrittenLine
{
public:
    enum class Kind
    {
        Blank,
        Comment, ///< begins with ";" or "#"
        Header,
        Entry,
        Other
    };

    WrittenLine() = default;
    /// A line in UTF-8, with its end or without; a byte order mark of the file is no part of it.
    explicit WrittenLine(const QByteArray& line);

    Kind kind() const { return m_kind; }
    /// The section that a header begins, or the key of an entry, without blanks around it.
    const QByteArray& name() const { return m_name; }
    /// Of an entry: what follows the first "=", without blanks around it.
    const QByteArray& value() const { return m_value; }
    /// True where a carriage return stands before the end.
    bool hasInnerReturn() const { return m_text.contains('\r'); }
    bool hasZeroByte() const { return m_text.contains('\0'); }
    /// True where no character has a meaning of its own for a family: where it takes such a line
    /// for what it looks like, it reads name and value as they stand there.
    bool isPlain() const;

private:
    QByteArray m_text; ///< without blanks around it
    Kind m_kind = Kind::Blank;
    QByteArray m_name;
    QByteArray m_value;
};
