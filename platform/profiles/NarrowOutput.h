#pragma once

#include <QByteArray>
#include <QStringView>

#include <algorithm>
#include <array>
#include <functional>

/// Makes UTF-8 of a text that comes part by part, without a copy of the whole: in pieces of some
/// MiB, so that a small file is still written at once.
class NarrowOutput
{
public:
    using Write = std::function<void(const QByteArray& bytes)>;

    explicit NarrowOutput(Write write);

    void append(QStringView part)
    {
        // In the header, as a file of millions of names is written part by part.
        if (part.size() > charactersAtOnce - m_size) {
            appendInPieces(part);
            return;
        }
        std::copy(part.begin(), part.end(), m_text.begin() + m_size);
        m_size += static_cast<int>(part.size());
    }
    /// Writes what is left.
    void finish();

private:
    static constexpr int charactersAtOnce = 16384;

    void appendInPieces(QStringView part);
    void encode(int size);
    void encodeWhole();

    Write m_write;
    std::array<QChar, charactersAtOnce> m_text; ///< that has not been encoded yet
    int m_size = 0;                             ///< of that text
    QByteArray m_bytes;                         ///< that have not been written yet
};
