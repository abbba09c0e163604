#include "trace/reading/CallParts.h"

#include "trace/Operations.h"
#include "trace/reading/TraceFile.h"

#include <algorithm>
#include <utility>

namespace trace {

namespace {

Rows<BitName> namesOf(const Operation* operation, const std::string& parameter)
{
    const Parameter* const row = operation ? findParameter(*operation, parameter) : nullptr;
    return row ? row->names : Rows<BitName>();
}

// Where the pointer is differs from run to run, whatever the library does.
bool isPointerPosition(const Call& call, const std::string& parameter)
{
    return call.operation == QLatin1String("GetCursorPos") && parameter == "point";
}

} // namespace

CallParts::CallParts(const SignedCalls& calls, int place, MakerText makerText, ValueText::Form form)
{
    TraceFile& file = calls.file();
    const CallEntry& entry = file.calls()[static_cast<std::size_t>(place)];
    const std::optional<Call> call = file.call(entry);
    if (!call)
        return;
    int handles = 0;
    const ValueText values(
        [&](const QString& handle) {
            const qint64 maker = calls.maker(place, handles++);
            const bool isAddress = handle.startsWith(QLatin1String("0x"));
            return maker > 0 ? makerText(maker) : isAddress ? tr("unknown handle") : handle;
        },
        form);
    const Operation* const operation = file.operation(entry);
    for (const RecordedMember& argument : call->arguments.members)
        add(QString::fromStdString(argument.name),
            values.of(argument.value, namesOf(operation, argument.name)));
    if (call->hasReturned())
        addReturned(*call, values, operation);
    else
        add(tr("(outcome)"), tr("never returned"));
}

void CallParts::addReturned(const Call& call, const ValueText& values, const Operation* operation)
{
    add(tr("(outcome)"), tr("returned"));
    for (const RecordedMember& output : call.outputs.members) {
        const QString text = values.of(output.value, namesOf(operation, output.name));
        if (!isPointerPosition(call, output.name))
            add(tr("%1 (written)").arg(QString::fromStdString(output.name)), text);
    }
    if (!call.result.isAbsent())
        add(tr("(result)"),
            values.of(call.result, operation ? operation->result.names : Rows<BitName>()));
}

QString CallParts::text(const QString& name) const
{
    const auto found = std::find_if(m_parts.begin(), m_parts.end(),
                                    [&name](const Part& part) { return part.name == name; });
    return found == m_parts.end() ? QString() : found->text;
}

} // namespace trace
