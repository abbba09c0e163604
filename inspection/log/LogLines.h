#pragma once

#include "app/Logger.h"

#include <QByteArray>
#include <QString>

#include <vector>

/// One entry of a log file.
struct LogEntry
{
    /// The lines that mark the start and the end of a run have none.
    enum class Level
    {
        None = -1,
        Debug = Logger::debug,
        Info = Logger::info,
        Warning = Logger::warning,
        Error = Logger::error
    };

    Level level = Level::None;
    QString time; ///< as written; empty for a line that does not come from a logger
    QString text; ///< with its line ends
    QString line; ///< the entry as it stands in the file, without the line end that closes it
};

/// Takes a log file apart, piece by piece as it grows. A line that does not begin as the logger
/// begins one belongs to the entry before it.
class LogLines
{
public:
    /// Takes the next bytes of the file; a line counts once its end has come.
    void add(const QByteArray& bytes);

    const std::vector<LogEntry>& entries() const { return m_entries; }
    void clear();

private:
    void addLine(const QByteArray& line);

    QByteArray m_rest;
    std::vector<LogEntry> m_entries;
};
