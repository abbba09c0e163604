#pragma once

#include "trace/reading/CallFilter.h"
#include "trace/reading/TraceFile.h"

#include <memory>

class Arguments;
class Output;
class QCommandLineParser;

/// Arguments of the commands that read recordings.
namespace RecordingArgument {

/// The recording, or that of a bundle, read to its end; lines that cannot be read are told. Throws
/// a Failure where it cannot be read, or is none.
std::unique_ptr<trace::TraceFile> read(const QString& file, const Output& output);

/// The recording, of which little has been read, as one that is still written. Waits while its file
/// is empty; null where the program is to end meanwhile. Throws a Failure where it cannot be read,
/// or is none.
std::unique_ptr<trace::TraceFile> await(const QString& file);

/// The options --calls and --failures.
void addFilterOptions(QCommandLineParser& parser);
/// What they say. Throws a Failure where a set makes no sense.
trace::CallFilter filter(const Arguments& arguments);

} // namespace RecordingArgument
