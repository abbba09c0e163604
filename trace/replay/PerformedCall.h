#pragma once

#include "trace/Operations.h"
#include "trace/reading/RecordedValue.h"
#include "trace/replay/Invocation.h"

namespace replay {

/// A call of a service: performed when it is made, with its answer in the form of a recording.
class PerformedCall
{
public:
    /// The arguments outlive this.
    PerformedCall(trace::Interface interface, const trace::Operation& operation, void* manager,
                  const std::uint64_t* words);
    /// Frees an array that the caller owns.
    ~PerformedCall();

    PerformedCall(const PerformedCall&) = delete;
    PerformedCall& operator=(const PerformedCall&) = delete;

    const trace::RecordedValue& result() const { return m_result; }
    const trace::RecordedValue& outputs() const { return m_outputs; }
    std::uint64_t resultWord() const { return m_answer.word; }

private:
    const trace::Operation& m_operation;
    Answer m_answer;
    trace::RecordedValue m_result;
    trace::RecordedValue m_outputs;
};

} // namespace replay
