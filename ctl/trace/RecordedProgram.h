#pragma once

#include "trace/RecordingOptions.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>
#include <sys/types.h>

/// A program that is run with the library that records.
class RecordedProgram
{
    Q_DECLARE_TR_FUNCTIONS(RecordedProgram)

public:
    RecordedProgram(const QString& library, const trace::RecordingOptions& options)
        : m_library(library), m_options(options)
    {
    }

    /// Starts the program that the first word names, as a shell would find it. Throws a Failure
    /// where that is not possible.
    void start(const QStringList& words);

    /// Waits so many milliseconds for its end. The status then: its own, or 128 and the number of
    /// the signal that has ended it.
    std::optional<int> wait(int milliseconds);

    /// Sends it a signal.
    void signal(int number) const;

private:
    void prepareEnvironment() const;
    [[noreturn]] void become(const QStringList& words, int failures) const;

    QString m_library;
    trace::RecordingOptions m_options;
    pid_t m_process = -1;
};
