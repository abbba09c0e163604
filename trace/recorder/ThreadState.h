#pragma once

#include "trace/recorder/Line.h"
#include "trace/recorder/RecordFile.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace recorder {

/// A call that is under way.
struct OpenCall
{
    const void* stack = nullptr; ///< where the caller's stack ended
    std::uint64_t number = 0;
    std::uint64_t start = 0;
    bool isCallback = false;
    RecordFile::Place written;
    Line line;
};

/// What a thread keeps between calls, so that calls need no memory of their own.
class ThreadState
{
public:
    /// The calling thread's.
    static ThreadState& current();

    /// From 1, in the order of the first calls.
    unsigned int number() const { return m_number; }

    /// "library+offset" of a caller.
    const std::string& placeOf(std::uintptr_t address);

    /// Opens a call from where the stack ended. Calls that were left by a jump are forgotten: the
    /// stack ended lower there, or at the same place.
    OpenCall& open(const void* stack);
    /// The call that was opened there; null if it was left by a jump meanwhile.
    OpenCall* find(const void* stack);
    /// Ends the innermost call.
    void close();

    /// The depth of the innermost call.
    std::size_t depth() const { return m_depth - 1; }
    /// The call around the innermost one.
    const OpenCall& enclosing() const { return m_calls[m_depth - 2]; }

    /// Whether the services have called a procedure of the caller's, which runs.
    bool isInCallback() const { return m_depth > 0 && m_calls[m_depth - 1].isCallback; }

    /// Room for what has to be copied.
    std::vector<wchar_t> wideCopy;
    std::vector<char> narrowCopy;
    std::vector<unsigned char> byteCopy;

    /// Calls of the recorder's own are not recorded.
    bool isAsking = false;

private:
    struct Caller
    {
        std::uintptr_t address = 0;
        std::uint64_t generation = 0;
        std::string place;
    };

    ThreadState();

    unsigned int m_number;
    std::vector<OpenCall> m_calls;
    std::size_t m_depth = 0;
    std::array<Caller, 256> m_callers;
};

} // namespace recorder
