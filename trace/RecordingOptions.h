#pragma once

#include "trace/operations/Operation.h"

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// How a recording is made: what the command line hands over to the library that records, through
/// the environment of the recorded program.
namespace trace {

/// The operations that are recorded.
class CallSelection
{
public:
    /// All of them.
    CallSelection();

    /// Names of managers and operations with commas between them; one with "!" in front is left
    /// out, and a list that begins with such a one starts from all. Nothing if a name is unknown,
    /// which then stands in `unknown`.
    static std::optional<CallSelection> parse(std::string_view list, std::string& unknown);

    bool has(std::size_t interface, std::size_t slot) const
    {
        return m_slots[interface * slotLimit + slot];
    }

private:
    static constexpr std::size_t slotLimit = 32;
    static constexpr std::size_t limit = 9 * slotLimit;

    bool set(std::string_view name, bool isWanted);

    std::bitset<limit> m_slots;
};

struct RecordingOptions
{
    std::string file;                       ///< empty: nothing is recorded
    bool hasAllCallers = false;             ///< the main program's own calls too
    bool hidesData = false;                 ///< lengths instead of values
    std::optional<std::size_t> longestText; ///< characters of a text, bytes of data
    std::string selection;                  ///< as `CallSelection::parse` reads it; empty: all
};

/// The environment variables by which they travel.
namespace variable {
inline constexpr char file[] = "QUAYSIDE_TRACE_FILE";
inline constexpr char all[] = "QUAYSIDE_TRACE_ALL";
inline constexpr char hide[] = "QUAYSIDE_TRACE_HIDE";
inline constexpr char text[] = "QUAYSIDE_TRACE_TEXT";
inline constexpr char calls[] = "QUAYSIDE_TRACE_CALLS";
inline constexpr char preload[] = "LD_PRELOAD";
} // namespace variable

/// What the environment of this process says.
RecordingOptions optionsFromEnvironment();

/// Takes these variables out of the environment, and the library from what is preloaded, so that
/// programs that the recorded one starts are as they always were.
void clearRecordingEnvironment(std::string_view libraryName);

} // namespace trace
