#pragma once

#include <QString>

#include <vector>

class Output;

namespace trace {
class TraceFile;
}

/// The recording that a command makes of another one: lines stay as they are. Without a file, or
/// for
/// "-", it is the output, and there is no document around it.
namespace RecordingOutput {

/// To be called before long work. Throws a Failure where a document is asked for and there is no
/// file.
void check(const QString& file, const Output& output);

/// Writes the calls with these numbers. Throws a Failure where that is not possible.
void write(trace::TraceFile& recording, const std::vector<qint64>& numbers, const QString& file,
           Output& output);

} // namespace RecordingOutput
