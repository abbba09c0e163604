#include "trace/recorder/Call.h"

#include "trace/recorder/CallValues.h"
#include "trace/recorder/Recording.h"

#include <cerrno>

namespace recorder {

namespace {

class KeptErrno
{
public:
    KeptErrno() : m_number(errno) {}
    ~KeptErrno() { errno = m_number; }

    KeptErrno(const KeptErrno&) = delete;
    KeptErrno& operator=(const KeptErrno&) = delete;

private:
    int m_number;
};

void member(Line& line, std::string_view name, std::uint64_t number)
{
    line.name(name);
    line.unsignedNumber(number);
}

void quotedMember(Line& line, std::string_view name, std::string_view text)
{
    line.name(name);
    line.raw("\"");
    line.raw(text);
    line.raw("\"");
}

} // namespace

Call::Call(const trace::Manager& manager, const trace::Operation& operation, void* object,
           const std::uint64_t* words, const CallSite& site)
    : m_operation(operation), m_object(object), m_words(words), m_stack(site.stack)
{
    const KeptErrno kept;
    OpenCall& open = enter();
    open.line.name("caller");
    open.line.quoted(ThreadState::current().placeOf(site.caller));
    quotedMember(open.line, "manager", manager.name);
    quotedMember(open.line, "op", operation.name);
    open.line.name("object");
    open.line.hex(reinterpret_cast<std::uint64_t>(object));
    begin(open);
}

Call::Call(const trace::Operation& callback, const std::uint64_t* words, const void* stack)
    : m_operation(callback), m_words(words), m_stack(stack)
{
    const KeptErrno kept;
    OpenCall& open = enter();
    open.isCallback = true;
    quotedMember(open.line, "callback", callback.name);
    begin(open);
}

Call::~Call()
{
    if (m_hasReturned)
        return;
    const KeptErrno kept;
    if (OpenCall* open = ThreadState::current().find(m_stack))
        complete(*open, 0);
}

OpenCall& Call::enter()
{
    ThreadState& state = ThreadState::current();
    Recording& recording = Recording::instance();
    OpenCall& open = state.open(m_stack);
    open.number = recording.nextNumber();
    Line& line = open.line;
    line.raw("{\"n\":");
    line.unsignedNumber(open.number);
    member(line, "t", recording.time());
    member(line, "thread", state.number());
    member(line, "depth", state.depth());
    if (state.depth() > 0)
        member(line, "in", state.enclosing().number);
    return open;
}

void Call::begin(OpenCall& open)
{
    Recording& recording = Recording::instance();
    ValueWriter writer(open.line, ThreadState::current(), recording.options());
    open.line.name("args");
    open.line.raw("{");
    writeArguments({m_operation, m_words}, writer);
    open.line.raw("}}\n");
    m_inquiry.before(m_operation, m_object, m_words);
    open.written = recording.file().append(open.line.text());
    open.start = recording.time();
}

void Call::returned(std::uint64_t result)
{
    const KeptErrno kept;
    const std::uint64_t end = Recording::instance().time();
    m_hasReturned = true;
    m_inquiry.after(m_operation, m_object, m_words, result);
    OpenCall* open = ThreadState::current().find(m_stack);
    if (!open)
        return;
    open->start = end - open->start;
    complete(*open, result);
}

// What follows the arguments; before that the line is the same as when the call was entered.
void Call::complete(OpenCall& open, std::uint64_t result)
{
    Recording& recording = Recording::instance();
    Line& line = open.line;
    const std::size_t kept = line.size() - 2;
    line.cut(kept);
    if (m_hasReturned) {
        const CallWords call{m_operation, m_words};
        ValueWriter writer(line, ThreadState::current(), recording.options());
        member(line, "d", open.start);
        line.name("result");
        writeResult(call, result, writer);
        line.name("out");
        line.raw("{");
        writeOutputs(call, result, m_inquiry, writer);
        line.raw("}}\n");
    } else {
        member(line, "d", recording.time() - open.start);
        line.raw(",\"thrown\":true}\n");
    }
    recording.file().complete(open.written, line.text(), kept);
    ThreadState::current().close();
}

} // namespace recorder
