#pragma once

#include "inspection/log/LogEntry.h"

#include <QByteArray>

#include <vector>

/// What a further piece of a log file adds to the entries before it.
struct LogPiece
{
    /// The file has become shorter: the entries before are gone.
    bool startsAnew = false;
    /// Lines of the last entry before, each with a line feed in front of it.
    QString continuation;
    std::vector<LogEntry> entries;
};

/// Parses a log file piece by piece as it grows. A line that does not begin as the logger begins
/// one belongs to the entry before it.
class LogParser
{
public:
    /// Parses the next bytes of the file; a line counts once its end has come.
    LogPiece parse(const QByteArray& bytes);

private:
    void addLine(const QByteArray& line, LogPiece& piece);

    QByteArray m_rest; // of a line whose end has not come
    bool m_hasEntry = false;
};
