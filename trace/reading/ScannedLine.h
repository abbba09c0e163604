#pragma once

#include "trace/reading/CallEntry.h"

#include <string_view>

namespace trace {

/// What the index of a recording wants of a line; the rest of the line is passed over.
struct ScannedLine
{
    enum class Kind
    {
        Damaged,
        Header,
        Library, ///< a library that has been loaded later
        End,     ///< of a recording that has ended as it should
        Call,
        Other ///< what a later version may write
    };

    Kind kind = Kind::Damaged;
    CallEntry entry; ///< of a call, without the names, the offset and the length
    std::string_view caller;
    std::string_view manager;
    std::string_view operation;
    std::string_view result; ///< as it is written; empty where there is none

    /// The views are of that text.
    static ScannedLine of(std::string_view line);
};

} // namespace trace
