#include "trace/replay/RecordedForm.h"

#include "trace/reading/JsonReader.h"
#include "trace/recorder/CallValues.h"
#include "trace/recorder/Line.h"
#include "trace/recorder/Memory.h"
#include "trace/recorder/ThreadState.h"

namespace replay::RecordedForm {

namespace {

// What `write` puts into a line, read again.
template <typename Write>
trace::RecordedValue written(Write write)
{
    static const trace::RecordingOptions options; // nothing hidden, nothing shortened
    recorder::Line line;
    recorder::ValueWriter writer(line, recorder::ThreadState::current(), options);
    write(writer);
    return trace::JsonReader(line.text()).value();
}

} // namespace

void prepare()
{
    static const bool isPrepared = [] {
        recorder::memory::prepare();
        return true;
    }();
    static_cast<void>(isPrepared);
}

trace::RecordedValue argumentsOf(const trace::Operation& operation, const std::uint64_t* words)
{
    return written([&](recorder::ValueWriter& writer) {
        writer.line().raw("{");
        recorder::writeArguments({operation, words}, writer);
        writer.line().raw("}");
    });
}

trace::RecordedValue resultOf(const trace::Operation& operation, const std::uint64_t* words,
                              std::uint64_t result)
{
    return written([&](recorder::ValueWriter& writer) {
        recorder::writeResult({operation, words}, result, writer);
    });
}

trace::RecordedValue outputsOf(const trace::Operation& operation, const std::uint64_t* words,
                               std::uint64_t result, const recorder::Inquiry& inquiry)
{
    return written([&](recorder::ValueWriter& writer) {
        writer.line().raw("{");
        recorder::writeOutputs({operation, words}, result, inquiry, writer);
        writer.line().raw("}");
    });
}

} // namespace replay::RecordedForm
