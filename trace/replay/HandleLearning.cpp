#include "trace/replay/HandleLearning.h"

#include "platform/WindowsTypes.h"
#include "trace/reading/KnownOperation.h"
#include "trace/replay/HandleMap.h"

#include <cstring>

namespace replay {

namespace {

using trace::Parameter;
using trace::Role;

bool isHandle(Role role)
{
    return role >= Role::KeyHandle && role <= Role::CursorHandle;
}

// The text of a handle that is an address or a number; empty for null and for named ones.
QString addressIn(const trace::RecordedValue& value)
{
    const QString& handle = value.textOf("handle");
    const bool isAddress = handle.startsWith(QLatin1String("0x")) && handle != QLatin1String("0x0");
    return isAddress ? handle : QString();
}

bool isMade(std::uint64_t word)
{
    return word != 0 && word != reinterpret_cast<std::uint64_t>(INVALID_HANDLE_VALUE);
}

} // namespace

// With role, text of the recording, and what is there here.
template <typename Take>
void HandleLearning::forEachMade(Take take) const
{
    std::size_t place = 0;
    for (const Parameter& parameter : m_operation.parameters) {
        const std::uint64_t address = m_words[place++];
        const QString recorded = addressIn(m_call.outputs.member(parameter.name));
        if (parameter.role != Role::KeyHandleOut || recorded.isEmpty() || address == 0)
            continue;
        std::uint64_t word = 0;
        std::memcpy(&word, reinterpret_cast<const void*>(address), sizeof word);
        take(parameter.role, recorded, word);
    }
    if (isHandle(m_operation.result.role) && !addressIn(m_call.result).isEmpty())
        take(m_operation.result.role, addressIn(m_call.result), m_result);
}

void HandleLearning::applyEnded(HandleMap& handles) const
{
    if (trace::KnownOperation::isFailure(m_operation, m_call.result))
        return;
    for (const Parameter& parameter : m_operation.parameters) {
        const QString recorded = addressIn(m_call.arguments.member(parameter.name));
        if (parameter.life == trace::Life::Ends && !recorded.isEmpty())
            handles.end(parameter.role, recorded);
    }
}

void HandleLearning::apply(HandleMap& handles) const
{
    applyEnded(handles);
    forEachMade([&handles](Role role, const QString& recorded, std::uint64_t word) {
        if (isMade(word))
            handles.add(role, recorded, word);
        else
            handles.miss(role, recorded);
    });
}

void HandleLearning::applyMissing(HandleMap& handles) const
{
    applyEnded(handles);
    forEachMade([&handles](Role role, const QString& recorded, std::uint64_t /*word*/) {
        handles.miss(role, recorded);
    });
}

bool HandleLearning::isSameHandedBack() const
{
    bool isSame = true;
    forEachMade([&](Role /*role*/, const QString& recorded, std::uint64_t word) {
        std::size_t place = 0;
        for (const Parameter& parameter : m_operation.parameters) {
            const std::uint64_t given = m_words[place++];
            if (isHandle(parameter.role) &&
                addressIn(m_call.arguments.member(parameter.name)) == recorded)
                isSame = isSame && given == word;
        }
    });
    return isSame;
}

} // namespace replay
