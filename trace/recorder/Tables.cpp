#include "trace/recorder/Tables.h"

#include "trace/recorder/Thunks.h"

#include <array>
#include <atomic>
#include <mutex>
#include <sys/mman.h>
#include <unistd.h>

namespace recorder::tables {

namespace {

struct Table
{
    void* const* slots = nullptr;
    trace::Interface interface = trace::Interface::Services;
    Functions originals = {};
};

// Programs may derive from the managers, but hardly more often than this.
std::array<Table, 64> g_tables;
std::atomic<std::size_t> g_count{0};
std::mutex g_mutex;

const Table* find(trace::Interface interface, void* const* slots)
{
    const std::size_t count = g_count.load(std::memory_order_acquire);
    for (std::size_t i = 0; i < count; ++i) {
        if (g_tables[i].slots == slots && g_tables[i].interface == interface)
            return &g_tables[i];
    }
    return nullptr;
}

// Tables are read-only once the loader has filled them in.
class Writable
{
public:
    Writable(void** begin, std::size_t count)
    {
        const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
        const auto first = reinterpret_cast<std::uintptr_t>(begin) & ~(page - 1);
        const auto end = reinterpret_cast<std::uintptr_t>(begin + count);
        m_begin = reinterpret_cast<void*>(first);
        m_size = end - first;
        m_isWritable = mprotect(m_begin, m_size, PROT_READ | PROT_WRITE) == 0;
    }
    ~Writable() { mprotect(m_begin, m_size, PROT_READ); }

    Writable(const Writable&) = delete;
    Writable& operator=(const Writable&) = delete;

    bool isWritable() const { return m_isWritable; }

private:
    void* m_begin;
    std::size_t m_size;
    bool m_isWritable;
};

// Known before the first recording operation stands in its slot, since another thread may be there.
void remember(trace::Interface interface, void** slots, std::size_t count)
{
    Table& table = g_tables[g_count];
    table.slots = slots;
    table.interface = interface;
    for (std::size_t slot = 0; slot < count; ++slot)
        table.originals[slot] = slots[slot];
    g_count.store(g_count + 1, std::memory_order_release);
}

} // namespace

void replaceIn(trace::Interface interface, const void* object)
{
    if (object)
        replace(interface, *static_cast<void** const*>(object));
}

void learn(std::size_t slot, const void* manager)
{
    const trace::Interface interface = trace::interfaceOfAccessor(slot);
    if (interface != trace::Interface::Services)
        replaceIn(interface, manager);
}

void replace(trace::Interface interface, void** slots)
{
    if (find(interface, slots))
        return;
    const std::lock_guard<std::mutex> lock(g_mutex);
    if (find(interface, slots) || g_count == g_tables.size())
        return;
    const std::size_t count = trace::manager(interface).operations.size();
    const Writable writable(slots, count);
    if (!writable.isWritable())
        return;
    remember(interface, slots, count);
    for (std::size_t slot = 0; slot < count; ++slot) {
        if (void* recording = thunkOf(interface, slot))
            slots[slot] = recording;
    }
}

const void* original(trace::Interface interface, const void* object, std::size_t slot)
{
    return find(interface, *static_cast<void* const* const*>(object))->originals[slot];
}

} // namespace recorder::tables
