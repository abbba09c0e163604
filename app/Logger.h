#pragma once

#include <fstream>
#include <string>

/// The local date and time now, as 2026-03-07 09:05:01.
std::string currTime();

/// Writes timestamped lines to a file, to standard output, or to both.
///
/// A line is prefix, time, " : ", text and a line feed; the text is written as given. A file that
/// cannot be opened swallows its lines silently; one on a full disk goes on when there is room
/// again, with the last few of the lines that it has missed. Use one logger from one thread at a
/// time.
class Logger
{
public:
    /// Any value other than `file` and `console` behaves like `file_and_console`.
    enum log_target : int
    {
        file = 0,
        console = 1,
        file_and_console = 2
    };

    /// The underlying type is signed, so that a level of -1 lies below every threshold.
    /// Other values are allowed and get no prefix.
    enum log_level : int
    {
        debug = 0,
        info = 1,
        warning = 2,
        error = 3
    };

    /// Logs everything to standard output, and says so there.
    Logger();

    /// Appends to the file at `path` unless `target` is `console`; announces itself on each target,
    /// whatever the level.
    Logger(log_target target, log_level level, const std::string& path);

    /// Closes the file with a last line; writes nothing to standard output.
    ~Logger();

    Logger(const Logger&) = delete;
    Logger& operator=(const Logger&) = delete;

    /// Writes one line of level `debug`, as `output` does; the text is bytes, without a line feed
    /// of its own.
    void DEBUG(const std::string& text);
    /// Writes one line of level `info`.
    void INFO(const std::string& text);
    /// Writes one line of level `warning`.
    void WARNING(const std::string& text);
    /// Writes one line of level `error`. The plural is intended: the name is part of the interface.
    void ERRORS(const std::string& text);

    /// Writes one line. The threshold filters standard output only: the file, where there is one,
    /// gets every line. Flushes the file, never standard output.
    void output(const std::string& text, log_level level);

private:
    void append(const std::string& text);

    std::ofstream m_file;
    log_target m_target;
    std::string m_path;
    log_level m_level;
};
