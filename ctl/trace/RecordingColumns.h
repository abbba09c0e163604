#pragma once

#include "ctl/Column.h"

/// Columns of the commands that read recordings.
namespace RecordingColumns {

constexpr Column call{"call", QT_TRANSLATE_NOOP("Output", "Call")};
constexpr Column second{"second", QT_TRANSLATE_NOOP("Output", "In the second")};
constexpr Column depth{"depth", QT_TRANSLATE_NOOP("Output", "Depth")};
constexpr Column thread{"thread", QT_TRANSLATE_NOOP("Output", "Thread")};
constexpr Column caller{"caller", QT_TRANSLATE_NOOP("Output", "Caller")};
constexpr Column manager{"manager", QT_TRANSLATE_NOOP("Output", "Manager")};
constexpr Column operation{"operation", QT_TRANSLATE_NOOP("Output", "Operation")};
constexpr Column arguments{"arguments", QT_TRANSLATE_NOOP("Output", "Arguments")};
constexpr Column result{"result", QT_TRANSLATE_NOOP("Output", "Result")};
constexpr Column time{"time", QT_TRANSLATE_NOOP("Output", "Time")};
constexpr Column duration{"duration", QT_TRANSLATE_NOOP("Output", "Duration")};
constexpr Column place{"place", QT_TRANSLATE_NOOP("Output", "Place")};
constexpr Column calls{"calls", QT_TRANSLATE_NOOP("Output", "Calls")};
constexpr Column failures{"failures", QT_TRANSLATE_NOOP("Output", "Failures")};
constexpr Column absent{"absent", QT_TRANSLATE_NOOP("Output", "Absent")};
constexpr Column unreturned{"unreturned", QT_TRANSLATE_NOOP("Output", "Never returned")};
constexpr Column longest{"longest", QT_TRANSLATE_NOOP("Output", "Longest")};
constexpr Column handle{"handle", QT_TRANSLATE_NOOP("Output", "Handle")};
constexpr Column part{"part", QT_TRANSLATE_NOOP("Output", "Part")};
constexpr Column different{"different", QT_TRANSLATE_NOOP("Output", "Different")};
constexpr Column skipped{"skipped", QT_TRANSLATE_NOOP("Output", "Not performed")};
constexpr Column first{"first", QT_TRANSLATE_NOOP("Output", "First difference")};

} // namespace RecordingColumns
