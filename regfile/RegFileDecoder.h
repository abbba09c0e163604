#pragma once

#include <QByteArray>
#include <QString>
#include <QTextCodec>

#include <utility>

/// Decodes a registry file piece by piece: UTF-16 by its byte order mark, version 4 by a code page,
/// which the file does not name, and else UTF-8, with or without a mark.
class RegFileDecoder
{
public:
    /// `codePage` is the codec of a file of version 4; not null.
    explicit RegFileDecoder(const QTextCodec* codePage = QTextCodec::codecForLocale())
        : m_codePage(codePage)
    {
    }

    /// `size` is that of the whole file in bytes. Not needed, but a large text that grows is copied
    /// over and over, which takes as long as reading it.
    void reserve(qint64 size) { m_text.reserve(static_cast<int>(size)); }

    /// The next piece of the file, of any size.
    void add(const QByteArray& piece);
    /// The file has ended.
    void end();

    /// True when the file begins as one of version 4; known at its end.
    bool isVersion4() const { return m_isVersion4; }

    /// False when the bytes so far are not valid, or end within a character.
    bool isValid() const { return m_state.invalidChars == 0 && m_state.remainingChars == 0; }

    /// What has been decoded so far; it is gone from the decoder then.
    QString takeText() { return std::exchange(m_text, {}); }

private:
    void begin();
    void decode(const QByteArray& bytes);

    const QTextCodec* m_codePage;
    const QTextCodec* m_codec = nullptr; ///< known from the first bytes on
    QByteArray m_head;                   ///< the first bytes, while the codec is not known
    bool m_isVersion4 = false;
    QTextCodec::ConverterState m_state{QTextCodec::IgnoreHeader};
    QString m_text;
};
