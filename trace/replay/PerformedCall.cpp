#include "trace/replay/PerformedCall.h"

#include "trace/recorder/Inquiry.h"
#include "trace/replay/RecordedForm.h"

namespace replay {

// Around the call the service is asked what the recorder asks it, so that both know the same.
PerformedCall::PerformedCall(trace::Interface interface, const trace::Operation& operation,
                             void* manager, const std::uint64_t* words)
    : m_operation(operation)
{
    recorder::Inquiry inquiry;
    inquiry.before(operation, manager, words);
    invoke(interface, slotOf(interface, operation), manager, words, m_answer);
    inquiry.after(operation, manager, words, m_answer.word);
    m_result = RecordedForm::resultOf(operation, words, m_answer.word);
    m_outputs = RecordedForm::outputsOf(operation, words, m_answer.word, inquiry);
}

PerformedCall::~PerformedCall()
{
    const trace::Result& result = m_operation.result;
    if (result.role == trace::Role::Text && result.life == trace::Life::Begins)
        delete[] reinterpret_cast<wchar_t*>(m_answer.word);
}

} // namespace replay
