#pragma once

#include <QByteArray>
#include <QString>
#include <QTextCodec>

#include <utility>

/// Decodes a registry file piece by piece: UTF-16 by its byte order mark, else UTF-8, with or
/// without a mark.
class RegFileDecoder
{
public:
    /// `size` is that of the whole file in bytes. Not needed, but a large text that grows is copied
    /// over and over, which takes as long as reading it.
    void reserve(qint64 size) { m_text.reserve(static_cast<int>(size)); }

    /// The next piece of the file, of any size; the first one holds the whole mark, where there is
    /// one.
    void add(const QByteArray& piece);

    /// False when the bytes so far are not valid, or end within a character.
    bool isValid() const { return m_state.invalidChars == 0 && m_state.remainingChars == 0; }

    /// What has been decoded so far; it is gone from the decoder then.
    QString takeText() { return std::exchange(m_text, {}); }

private:
    int begin(const QByteArray& file);

    const QTextCodec* m_codec = nullptr; ///< known from the first piece on
    QTextCodec::ConverterState m_state{QTextCodec::IgnoreHeader};
    QString m_text;
};
