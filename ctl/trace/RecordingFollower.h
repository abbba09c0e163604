#pragma once

#include "ctl/trace/CallPrinter.h"

#include <QFile>

/// Prints the calls of a recording that is being written.
class RecordingFollower
{
public:
    RecordingFollower(const QString& path, const CallPrinter& printer);

    /// Prints what has been added. The last line may still be completed in its place: it is left
    /// for the next time, unless the recording has ended.
    void read(bool hasEnded);

private:
    QFile m_file;
    CallPrinter m_printer;
};
