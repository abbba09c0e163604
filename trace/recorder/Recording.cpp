#include "trace/recorder/Recording.h"

#include "trace/recorder/Header.h"
#include "trace/recorder/Memory.h"
#include "trace/recorder/Modules.h"
#include "trace/recorder/ThreadState.h"

#include <ctime>
#include <pthread.h>

namespace recorder {

namespace {

constexpr char libraryName[] = "libquayside-trace.so";

std::uint64_t monotonicTime()
{
    constexpr std::uint64_t second = 1000000000;
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<std::uint64_t>(time.tv_sec) * second +
           static_cast<std::uint64_t>(time.tv_nsec);
}

// The copy would write over what the recorded process goes on to write.
void stayInTheParent()
{
    pthread_atfork(nullptr, nullptr, [] { Recording::instance().abandon(); });
}

} // namespace

Recording& Recording::instance()
{
    // Never destroyed: calls come until the very end of the process.
    static auto& recording = *new Recording;
    return recording;
}

void Recording::begin()
{
    if (m_hasBegun)
        return;
    m_hasBegun = true;
    m_options = trace::optionsFromEnvironment();
    if (m_options.file.empty() || !prepare())
        return;
    trace::clearRecordingEnvironment(libraryName);
    stayInTheParent();
    m_isOn = true;
}

bool Recording::prepare()
{
    if (!m_file.open(m_options.file))
        return false;
    std::string unknown;
    m_selection = trace::CallSelection::parse(m_options.selection, unknown).value_or(m_selection);
    memory::prepare();
    m_start = monotonicTime();
    Line line;
    writeHeader(line, m_options, Modules::instance().takeUntold());
    m_file.append(line.text());
    return true;
}

bool Recording::wants(std::size_t interface, std::size_t slot, std::uintptr_t caller) const
{
    return m_isOn && m_selection.has(interface, slot) &&
           (m_options.hasAllCallers || !isOwnCall(caller)) && !ThreadState::current().isAsking;
}

// The program's, or a service's: one that goes on to another operation returns to the recorder, as
// a procedure of a library may do.
bool Recording::isOwnCall(std::uintptr_t caller) const
{
    const Modules& modules = Modules::instance();
    return modules.isProgram(caller) ||
           (modules.isRecorder(caller) && !ThreadState::current().isInCallback());
}

std::uint64_t Recording::time() const
{
    return monotonicTime() - m_start;
}

void Recording::abandon()
{
    m_isOn = false;
    m_file.stop();
}

void Recording::tellLibraries()
{
    for (const Module& library : Modules::instance().takeUntold()) {
        Line line;
        writeLibrary(line, library);
        m_file.append(line.text());
    }
}

void Recording::end()
{
    if (!m_isOn)
        return;
    tellLibraries();
    Line line;
    writeEnd(line, m_calls, time());
    m_file.append(line.text());
}

} // namespace recorder
