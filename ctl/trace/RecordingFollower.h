#pragma once

#include "trace/reading/CallText.h"
#include "trace/reading/GrowingLines.h"
#include "trace/reading/HandleTable.h"

#include <QFile>

#include <map>

/// Prints the calls of a recording that is being written, on the standard error: the standard
/// output is the recorded program's.
class RecordingFollower
{
public:
    /// Prints all calls, or only those that fail.
    RecordingFollower(const QString& path, bool hasOnlyFailures);

    RecordingFollower(const RecordingFollower&) = delete;
    RecordingFollower& operator=(const RecordingFollower&) = delete;

    /// Prints the calls that have returned since, each behind those within it. When the recording
    /// has ended, the calls that never returned follow.
    void read(bool hasEnded);

private:
    bool take(const trace::GrowingLines::Line& line);
    void add(const trace::Call& call);
    void print(const trace::Call& call, const trace::Operation* operation) const;

    QFile m_file;
    trace::GrowingLines m_lines;
    trace::HandleTable m_handles;
    trace::CallText m_text;
    std::map<qint64, trace::Call> m_open; ///< entered and not returned, by number
    bool m_hasOnlyFailures;
};
