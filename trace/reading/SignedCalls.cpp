#include "trace/reading/SignedCalls.h"

#include "trace/reading/TraceFile.h"
#include "trace/reading/ValueText.h"

namespace trace {

namespace {

// Two texts that differ get the same number once in 2^64.
quint64 hashOf(const QString& text)
{
    constexpr uint otherSeed = 0x9e3779b9;
    return (static_cast<quint64>(qHash(text, 0)) << 32U) | qHash(text, otherSeed);
}

} // namespace

void SignedCalls::add(const CallEntry& entry)
{
    const QString library = Call::library(m_file.name(entry.caller));
    const int group = number(library + QChar(0) + m_file.name(entry.manager));
    const int operation = number(m_file.name(entry.operation));
    m_firstMakers.push_back(m_makers.size());
    const std::optional<Call> call = m_file.call(entry);
    m_signatures.push_back({group, operation, call ? argumentsOf(*call) : 0});
    const Operation* const known = m_file.operation(entry);
    if (call && HandleTable::isConcerned(known))
        m_handles.follow(*call, *known);
    if (call)
        addOutputs(*call);
}

// A handle that is given back is still known here.
quint64 SignedCalls::argumentsOf(const Call& call)
{
    const ValueText text([this](const QString& handle) { return handleText(handle); },
                         ValueText::Form::ByRole);
    return hashOf(text.of(call.arguments));
}

void SignedCalls::addOutputs(const Call& call)
{
    const ValueText text([this](const QString& handle) { return handleText(handle); },
                         ValueText::Form::ByRole);
    text.of(call.outputs);
    text.of(call.result);
}

// A handle goes by what it was made for, so that the same calls have the same signature.
QString SignedCalls::handleText(const QString& handle)
{
    const HandleTable::Entry* const entry = m_handles.find(handle);
    m_makers.push_back(entry ? entry->maker : 0);
    if (entry)
        return entry->description;
    return handle.startsWith(QLatin1String("0x")) ? QString() : handle;
}

qint64 SignedCalls::maker(int call, int handle) const
{
    const std::size_t place =
        m_firstMakers[static_cast<std::size_t>(call)] + static_cast<std::size_t>(handle);
    return place < m_makers.size() ? m_makers[place] : 0;
}

int SignedCalls::number(const QString& name)
{
    const auto found = m_names.constFind(name);
    return found == m_names.constEnd() ? *m_names.insert(name, m_names.size()) : *found;
}

} // namespace trace
