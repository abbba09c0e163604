#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>
#include <vector>

namespace recorder {

/// A part of a library's file in memory that can be read.
struct Segment
{
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    bool isWritable = false;
    bool isExecutable = false;
};

/// A library, or the program itself.
struct Module
{
    std::string path;
    std::string name; ///< the last component of the path
    std::string buildId;
    std::uintptr_t base = 0;
    std::uintptr_t begin = 0;
    std::uintptr_t end = 0;
    std::vector<Segment> segments;
};

/// What the dynamic loader has loaded. The first module is the program.
class Modules
{
public:
    static Modules& instance();

    /// The program's own file, which is never unloaded.
    const Module& program() const { return m_program; }
    bool isProgram(std::uintptr_t address) const
    {
        return address >= m_program.begin && address < m_program.end;
    }

    /// This library, which the services return to, and so do the procedures of callers.
    bool isRecorder(std::uintptr_t address) const
    {
        return address >= m_recorder.begin && address < m_recorder.end;
    }

    /// "name+0x1a2b" for an address of code; "0x..." where it belongs to no library.
    std::string placeOf(std::uintptr_t address);

    /// The end of the segment that this address can be read in; 0 where it is in none.
    std::uintptr_t readableEnd(std::uintptr_t address);

    /// Libraries that have not been told of yet, in the order in which they were loaded.
    std::vector<Module> takeUntold();

    /// Forgets all: a library has been unloaded.
    void forget();
    /// Changes whenever a library is unloaded.
    std::uint64_t generation() const { return m_generation.load(std::memory_order_relaxed); }

private:
    Modules();
    void refresh();
    const Module* find(std::uintptr_t address) const;

    mutable std::mutex m_mutex;
    Module m_program;
    Module m_recorder;
    std::vector<Module> m_modules;
    std::vector<std::string> m_told;
    std::atomic<std::uint64_t> m_generation{1};
};

} // namespace recorder
