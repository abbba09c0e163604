#pragma once

#include "app/Logger.h"

#include <QCoreApplication>
#include <QString>

/// One entry of a log file.
struct LogEntry
{
    Q_DECLARE_TR_FUNCTIONS(LogEntry)

public:
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

    /// Appends further lines, each with a line feed in front of it.
    void append(const QString& lines);

    /// The level in words; empty where there is none.
    QString levelName() const;
    /// What there is room for of the text: 1,000 characters at most. A text of some megabytes would
    /// stall whoever lays it out.
    QString beginning() const;
    /// The same with a sign in place of each line end.
    QString beginningInOneLine() const;
};
