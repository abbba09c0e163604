#include "trace/reading/CallDetails.h"

#include "trace/Operations.h"
#include "trace/reading/CallText.h"

#include <utility>

namespace trace {

CallDetails::CallDetails(const Call& call, const Operation* operation,
                         ValueText::HandleText handleText)
    : m_values(std::move(handleText), ValueText::Form::Whole)
{
    addHead(call);
    addOutcome(call, operation);
    addValues(tr("Arguments:"), call.arguments, operation);
    addValues(tr("Written by the service:"), call.outputs, operation);
}

void CallDetails::addHead(const Call& call)
{
    addLine(call.manager.isEmpty()
                ? tr("Call %1: %2, a procedure of the library").arg(call.number).arg(call.operation)
                : tr("Call %1: %2 (%3)")
                      .arg(QString::number(call.number), call.operation, call.manager));
    if (!call.caller.isEmpty())
        addLine(tr("Caller: %1").arg(call.caller));
    addLine(tr("Entered: %1 after the start, in thread %2")
                .arg(CallText::time(call.time))
                .arg(call.thread));
    if (call.enclosing > 0)
        addLine(tr("Within call: %1").arg(call.enclosing));
}

void CallDetails::addOutcome(const Call& call, const Operation* operation)
{
    if (!call.hasReturned())
        return addLine(tr("It never returned."));
    addLine(tr("Took: %1").arg(CallText::time(call.duration)));
    const bool isNone = operation && operation->result.role == Role::None;
    if (!isNone && !call.result.isAbsent())
        addLine(tr("Result: %1")
                    .arg(m_values.of(call.result,
                                     operation ? operation->result.names : Rows<BitName>())));
}

void CallDetails::addValues(const QString& title, const RecordedValue& values,
                            const Operation* operation)
{
    if (values.members.empty())
        return;
    addLine(QString());
    addLine(title);
    for (const RecordedMember& member : values.members) {
        const Parameter* const row = operation ? findParameter(*operation, member.name) : nullptr;
        addLine(QStringLiteral("    %1 = %2")
                    .arg(QString::fromStdString(member.name),
                         m_values.of(member.value, row ? row->names : Rows<BitName>())));
    }
}

void CallDetails::addLine(const QString& line)
{
    if (!m_text.isEmpty())
        m_text += QLatin1Char('\n');
    m_text += line;
}

} // namespace trace
