#include "trace/recorder/Procedures.h"

#include "trace/operations/FontOperations.h"
#include "trace/recorder/Call.h"

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <utility>

namespace recorder::procedures {

namespace {

using Procedure = IPlatformFontManager::EnumProcedure;

// Each place has a function of its own, because the caller's value is the caller's: there is no
// room in the arguments for what is to be called.
constexpr std::size_t placeCount = 64;
std::array<std::atomic<Procedure>, placeCount> g_procedures;
std::mutex g_mutex;

template <std::size_t Place>
int record(const tagLOGFONTW* font, const tagTEXTMETRICW* metric, unsigned int type, long value)
{
    const std::uint64_t words[] = {reinterpret_cast<std::uint64_t>(font),
                                   reinterpret_cast<std::uint64_t>(metric), type,
                                   static_cast<std::uint64_t>(value)};
    Call call(trace::enumProcedure, words, __builtin_dwarf_cfa());
    const int result = g_procedures[Place].load()(font, metric, type, value);
    call.returned(static_cast<std::uint64_t>(static_cast<std::int64_t>(result)));
    return result;
}

template <std::size_t... Places>
constexpr std::array<Procedure, placeCount> recorders(std::index_sequence<Places...>)
{
    return {&record<Places>...};
}

} // namespace

Procedure recording(Procedure procedure)
{
    static constexpr auto functions = recorders(std::make_index_sequence<placeCount>());
    if (!procedure)
        return nullptr;
    const std::lock_guard<std::mutex> lock(g_mutex);
    for (std::size_t place = 0; place < placeCount; ++place) {
        if (!g_procedures[place])
            g_procedures[place] = procedure;
        if (g_procedures[place] == procedure)
            return functions[place];
    }
    return procedure;
}

} // namespace recorder::procedures
