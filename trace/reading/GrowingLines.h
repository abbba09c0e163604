#pragma once

#include <QFile>

#include <functional>
#include <string_view>

namespace trace {

/// The lines of a file that may still be written: read on from where the reading has stopped.
///
/// Whoever writes may replace the last line by a longer one. So a last line that its receiver does
/// not take for complete is delivered again once the file has grown.
class GrowingLines
{
public:
    static constexpr qint64 longestLine = qint64{64} * 1024 * 1024; ///< bytes

    struct Line
    {
        std::string_view text; ///< without its end; empty where it is too long
        qint64 offset;         ///< in bytes
        qint64 number;         ///< from 1 on
        bool isTooLong;
    };
    /// Returns whether the line is complete, whatever follows.
    using Receiver = std::function<bool(const Line&)>;

    enum class Reading
    {
        More,     ///< there may be more
        End,      ///< there was nothing more, for now
        Restarted ///< the file has become shorter: it will be read from its beginning
    };

    /// The file is open, and outlives this.
    explicit GrowingLines(QFile& file) : m_file(&file) {}

    /// Reads as many bytes and delivers the lines that have an end.
    Reading readOn(qint64 size, const Receiver& receiver);

    qint64 readSize() const { return m_readTo; }
    /// Whether the end of the last line is missing, and its number.
    bool isCut() const { return m_readTo > m_lineStart; }
    qint64 cutLine() const { return m_number + 1; }

private:
    void stepBack();
    void deliver(int searched, const Receiver& receiver);
    void deliverLine(std::string_view text, qint64 end, const Receiver& receiver);
    void dropOverlong();

    QFile* m_file;
    QByteArray m_pending;    ///< a line whose end has not been read
    qint64 m_readTo = 0;     ///< bytes
    qint64 m_lineStart = 0;  ///< of the line that is read next
    qint64 m_number = 0;     ///< lines read
    qint64 m_lastStart = -1; ///< of the last line, where it is not complete; else negative
    bool m_isAtEnd = false;
    bool m_isOverlong = false; ///< what is read belongs to a line that is dropped
};

} // namespace trace
