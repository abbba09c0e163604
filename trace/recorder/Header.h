#pragma once

#include "trace/RecordingOptions.h"
#include "trace/recorder/Line.h"
#include "trace/recorder/Modules.h"

#include <vector>

/// The lines that are no calls.
namespace recorder {

/// The first line: versions, the program and the libraries it has loaded.
void writeHeader(Line& line, const trace::RecordingOptions& options,
                 const std::vector<Module>& libraries);

/// A library that was loaded later.
void writeLibrary(Line& line, const Module& library);

/// A process that ended as it meant to, with the calls and the nanoseconds of the recording.
void writeEnd(Line& line, std::uint64_t calls, std::uint64_t time);

} // namespace recorder
