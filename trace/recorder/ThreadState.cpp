#include "trace/recorder/ThreadState.h"

#include "trace/recorder/Modules.h"
#include "trace/recorder/Recording.h"

#include <atomic>
#include <functional>
#include <pthread.h>

namespace recorder {

namespace {

// A plain pointer, since calls still come when the objects of a thread have been destroyed.
thread_local ThreadState* g_state = nullptr;

void destroy(void* state)
{
    g_state = nullptr;
    delete static_cast<ThreadState*>(state);
}

pthread_key_t stateKey()
{
    static const pthread_key_t key = [] {
        pthread_key_t made{};
        pthread_key_create(&made, &destroy);
        return made;
    }();
    return key;
}

unsigned int nextThread()
{
    static std::atomic<unsigned int> count{0};
    return ++count;
}

} // namespace

ThreadState::ThreadState() : m_number(nextThread()) {}

ThreadState& ThreadState::current()
{
    if (!g_state) {
        g_state = new ThreadState;
        pthread_setspecific(stateKey(), g_state);
    }
    return *g_state;
}

const std::string& ThreadState::placeOf(std::uintptr_t address)
{
    // Instructions are 4 bytes long on one architecture, and of any length on the other.
    Caller& caller = m_callers[(address ^ (address >> 8U)) % m_callers.size()];
    const std::uint64_t generation = Modules::instance().generation();
    if (caller.address != address || caller.generation != generation) {
        caller = {address, generation, Modules::instance().placeOf(address)};
        Recording::instance().tellLibraries();
    }
    return caller.place;
}

OpenCall& ThreadState::open(const void* stack)
{
    while (m_depth > 0 && std::less_equal<>()(m_calls[m_depth - 1].stack, stack))
        --m_depth;
    if (m_depth == m_calls.size())
        m_calls.emplace_back();
    OpenCall& call = m_calls[m_depth++];
    call.stack = stack;
    call.isCallback = false;
    call.line.clear();
    return call;
}

OpenCall* ThreadState::find(const void* stack)
{
    while (m_depth > 0 && m_calls[m_depth - 1].stack != stack)
        --m_depth;
    return m_depth > 0 ? &m_calls[m_depth - 1] : nullptr;
}

void ThreadState::close()
{
    m_calls[--m_depth].line.shrink();
}

} // namespace recorder
