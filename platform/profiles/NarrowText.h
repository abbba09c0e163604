#pragma once

#include <QString>
#include <QTextDecoder>

#include <memory>

/// Decodes a profile chunk by chunk as the narrow profile calls do: UTF-8, or what a byte order
/// mark at its beginning tells, which is removed; without any carriage return.
class NarrowText
{
public:
    /// Bytes of a chunk: other programs read these files with text streams, which decode chunks of
    /// this size and take a byte order mark away from the beginning of each chunk that only ASCII
    /// precedes. So does this.
    static constexpr int chunkSize = 16384;

    /// Makes room for the text of so many bytes.
    void reserve(qint64 bytes) { m_text.reserve(static_cast<int>(bytes)); }
    /// The text of the next chunk: of `chunkSize` bytes, but for the last one.
    QString decoded(const QByteArray& chunk);
    /// Adds that text.
    void append(const QByteArray& chunk) { m_text += decoded(chunk); }
    /// The text so far; leaves nothing behind.
    QString take() { return std::move(m_text); }

private:
    std::unique_ptr<QTextDecoder> m_decoder; ///< chosen by the first chunk
    QString m_text;
};
