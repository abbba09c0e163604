#pragma once

#include <QString>

#include <chrono>

/// What came of loading a library for a trial.
struct LoadTrial
{
    enum class Outcome
    {
        Loaded,
        Refused, ///< by the dynamic loader
        Crashed, ///< a signal ended the process
        Ended,   ///< the library's own start-up ended the process
        Hung,    ///< it took longer than the limit
        NotTried ///< no process could be started
    };

    Outcome outcome = Outcome::NotTried;
    QString
        detail; ///< the loader's message, the signal's name, the status, the seconds, or the fault

    /// As a whole sentence.
    QString text() const;
};

/// Loads the library in a copy of this process, which then ends; unlike the check of its file this
/// runs its start-up code. The library finds the symbols that this program exports and has loaded.
/// What it prints goes to standard error. Call it while the process has one thread.
LoadTrial tryLoading(const QString& path,
                     std::chrono::milliseconds limit = std::chrono::seconds(10));
