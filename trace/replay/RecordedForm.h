#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/RecordedValue.h"

#include <cstdint>

namespace recorder {
class Inquiry;
}

/// What a call was given and what it answered, in the form of the recording: it is the recorder
/// that writes it down here too.
namespace replay::RecordedForm {

void prepare();

trace::RecordedValue argumentsOf(const trace::Operation& operation, const std::uint64_t* words);
trace::RecordedValue resultOf(const trace::Operation& operation, const std::uint64_t* words,
                              std::uint64_t result);
/// What the service wrote; `inquiry` has been made around the call.
trace::RecordedValue outputsOf(const trace::Operation& operation, const std::uint64_t* words,
                               std::uint64_t result, const recorder::Inquiry& inquiry);

} // namespace replay::RecordedForm
