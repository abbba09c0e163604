#pragma once

#include "inspection/log/LogParser.h"

#include <functional>

/// Reads a log file as it grows. When to read on is left to the caller.
class LogReader
{
public:
    /// Gets what each piece of the file adds.
    using Receiver = std::function<void(LogPiece piece)>;

    /// The file need not exist yet.
    LogReader(const QString& file, Receiver receiver);

    /// Reads the next 64 KiB of the file; false when there is nothing more for now. A file that has
    /// become shorter is read from its start.
    bool readMore();

    /// Whether there is anything that has not been read, as the file's size tells.
    bool hasNews() const;

    /// How many entries have been read.
    int entries() const { return m_entries; }

private:
    QString m_file;
    Receiver m_receiver;
    LogParser m_parser;
    qint64 m_position = 0;
    int m_entries = 0;
};
