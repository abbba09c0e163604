#pragma once

#include "trace/RecordingOptions.h"
#include "trace/recorder/RecordFile.h"

#include <atomic>
#include <cstdint>

namespace recorder {

/// The recording of this process: what is recorded, and the file.
class Recording
{
public:
    static Recording& instance();

    /// Begins the recording that the environment asks for. Only the first call does something.
    void begin();

    /// Whether a call of this operation from this address is recorded.
    bool wants(std::size_t interface, std::size_t slot, std::uintptr_t caller) const;

    const trace::RecordingOptions& options() const { return m_options; }
    RecordFile& file() { return m_file; }

    /// The number of the next call, from 1.
    std::uint64_t nextNumber() { return ++m_calls; }

    /// Nanoseconds since the beginning.
    std::uint64_t time() const;

    /// Tells of libraries that have been loaded since.
    void tellLibraries();

    /// The process is about to end as it meant to.
    void end();

    /// Nothing more is recorded here: this process is a copy of the recorded one.
    void abandon();

private:
    Recording() = default;
    bool prepare();
    bool isOwnCall(std::uintptr_t caller) const;

    trace::RecordingOptions m_options;
    trace::CallSelection m_selection;
    RecordFile m_file;
    std::uint64_t m_start = 0;
    std::atomic<std::uint64_t> m_calls{0};
    std::atomic<bool> m_isOn{false};
    bool m_hasBegun = false;
};

} // namespace recorder
