#pragma once

#include <QByteArray>
#include <QCoreApplication>

/// A key or an IV as it was typed: as text, or as pairs of hexadecimal digits.
class TypedKey
{
    Q_DECLARE_TR_FUNCTIONS(TypedKey)

public:
    enum class Kind
    {
        Key,
        Iv
    };

    TypedKey(Kind kind, const QString& typed, bool hexadecimal);

    /// What the text stands for.
    const QByteArray& bytes() const { return m_bytes; }

    /// How many bytes there are, and how many are used, in words.
    QString count() const;

    /// Why the cipher cannot use them, in words; empty when it can.
    QString problem() const;

    /// What of them the cipher does not use, in words; empty when it uses all.
    QString note() const;

private:
    Kind m_kind;
    bool m_wellFormed;
    QByteArray m_bytes;
};
