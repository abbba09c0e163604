#pragma once

#include "inspection/Job.h"

#include <QSaveFile>

#include <functional>

/// Writes lines of a log to a file, in UTF-8. The file is replaced at the end and in one go: until
/// then, and when the job is dropped before, it stays as it was.
class LogSavingJob : public Job
{
public:
    /// `line` tells one of the lines, from 0 to `lines` - 1, without its end, until the job is
    /// gone.
    LogSavingJob(const QString& file, int lines, std::function<QString(int number)> line);

    bool step() override;
    /// The number of lines written.
    QString progress() const override;
    /// True before the step that replaces the file, if there are many lines.
    bool isNextStepLong() const override;

    /// How many lines have been written.
    int written() const { return m_written; }
    /// Why the file could not be written, in Qt's words; empty where nothing went wrong so far.
    QString error() const { return m_error; }

private:
    QSaveFile m_file;
    int m_lines;
    std::function<QString(int number)> m_line;
    int m_written = 0;
    QString m_error;
};
