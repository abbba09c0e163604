#include "trace/replay/BufferSize.h"

#include <algorithm>

namespace replay {

namespace {

using trace::Extent;
using trace::Role;
using Limit = GuardedBuffer::Limit;

// A caller may say that its buffer is larger than any; so much is surely not written.
constexpr std::size_t largest = std::size_t{16} * 1024 * 1024;
constexpr std::size_t clearedPath = 256; // characters that are overwritten, however short the text

std::size_t unitSize(Role role)
{
    const bool isBytes = role == Role::NarrowTextOut || role == Role::DataOut;
    return isBytes ? 1 : sizeof(wchar_t);
}

// How long the recorded output is, in units of the buffer.
std::size_t recordedUnits(const trace::Parameter& parameter, const trace::Call& call)
{
    const trace::RecordedValue& value = call.outputs.member(parameter.name);
    constexpr std::size_t bytesOfText = 4; // of a character, whatever the unit is
    const auto shown = static_cast<std::size_t>(value.textOf("text").size()) * bytesOfText;
    return std::max(shown, static_cast<std::size_t>(numberIn(value.member("length"))));
}

BufferSize unknown(std::size_t bytes)
{
    return {std::min(bytes, largest), Limit::Unknown};
}

} // namespace

qint64 numberIn(const trace::RecordedValue& value)
{
    const trace::RecordedValue& flags = value.member("flags");
    return flags.isAbsent() ? value.toInteger() : flags.toInteger();
}

std::size_t recordSize(trace::Rows<trace::Field> fields)
{
    std::size_t size = 0;
    for (const trace::Field& field : fields)
        size = std::max(size, std::size_t{field.offset} + std::size_t{field.size} * field.count);
    return size;
}

// Where a size of 0 is taken as unlimited, or as a request for an address, the room is not known.
BufferSize BufferSize::of(const trace::Parameter& parameter, const trace::Call& call)
{
    const std::size_t unit = unitSize(parameter.role);
    const std::size_t recorded = recordedUnits(parameter, call) * unit;
    if (parameter.extent == Extent::Path)
        return unknown(std::max(recorded, clearedPath * unit));
    if (!parameter.size)
        return unknown(recorded);
    const trace::RecordedValue& size = call.arguments.member(parameter.size);
    const auto units = static_cast<std::size_t>(std::max<qint64>(numberIn(size), 0));
    const bool isTold = size.kind == trace::RecordedValue::Kind::Number && units > 0;
    // The length of a name is only written, never asked for.
    const bool isAsked = parameter.extent != Extent::Size || parameter.role == Role::DataOut;
    if (!isTold || !isAsked || units * unit > largest)
        return unknown(recorded);
    return {units * unit, Limit::Known};
}

// With a text that does not fit, the service is meant to count up to the next terminator, which is
// the caller's.
std::ptrdiff_t terminatorPlace(const trace::Parameter& parameter, const trace::Call& call)
{
    if (parameter.extent != Extent::ResultCut && parameter.extent != Extent::ResultFull)
        return -1;
    return static_cast<std::ptrdiff_t>(numberIn(call.result)) *
           static_cast<std::ptrdiff_t>(unitSize(parameter.role));
}

} // namespace replay
