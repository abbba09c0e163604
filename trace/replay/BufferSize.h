#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/Call.h"
#include "trace/replay/GuardedBuffer.h"

namespace replay {

/// How large a buffer that a service writes to has to be in a replay: as large as the service was
/// told, so that the same texts fit, and where it was told nothing, large enough.
struct BufferSize
{
    std::size_t bytes;
    GuardedBuffer::Limit limit;

    static BufferSize of(const trace::Parameter& parameter, const trace::Call& call);
};

/// The bytes of a record up to the end of its last field.
std::size_t recordSize(trace::Rows<trace::Field> fields);

/// Where the service looks for a terminator behind what it has written, as the result of the
/// recorded call says; in bytes from the beginning. Negative where it does not.
std::ptrdiff_t terminatorPlace(const trace::Parameter& parameter, const trace::Call& call);

/// The number in a value, whatever form it has.
qint64 numberIn(const trace::RecordedValue& value);

} // namespace replay
