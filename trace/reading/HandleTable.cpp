#include "trace/reading/HandleTable.h"

#include "trace/operations/Operation.h"
#include "trace/reading/KnownOperation.h"
#include "trace/reading/TraceFile.h"

#include <QStringList>

#include <algorithm>

namespace trace {

namespace {

using Kind = HandleTable::Kind;

bool hasLife(const Operation& operation, Life life)
{
    return operation.result.life == life ||
           std::any_of(operation.parameters.begin(), operation.parameters.end(),
                       [life](const Parameter& parameter) { return parameter.life == life; });
}

Kind kindOf(Role role)
{
    switch (role) {
    case Role::KeyHandle:
    case Role::KeyHandleOut: return Kind::Key;
    case Role::SearchHandle: return Kind::Search;
    case Role::ObjectHandle: return Kind::Graphics;
    default: return Kind::Array;
    }
}

// The address or the number; empty where nothing was made.
QString handleOf(const RecordedValue& value)
{
    const QString& handle = value.textOf("handle");
    return handle.isEmpty() ? value.textOf("pointer") : handle;
}

// Of the first argument with this role, the member that says what it is.
const QString& firstOf(RecordedValue::Role role, const char* name, const Call& call)
{
    static const QString none;
    for (const RecordedMember& member : call.arguments.members) {
        if (member.value.role() == role)
            return member.value.textOf(name);
    }
    return none;
}

const QString& firstHandle(const Call& call)
{
    return firstOf(RecordedValue::Role::Handle, "handle", call);
}

const QString& firstText(const Call& call)
{
    return firstOf(RecordedValue::Role::Text, "text", call);
}

// Such as "createImage(0, 16, 16)".
QString asCall(const Call& call)
{
    QStringList numbers;
    for (const RecordedMember& member : call.arguments.members) {
        if (member.value.kind == RecordedValue::Kind::Number)
            numbers += member.value.text;
    }
    return call.operation + QLatin1Char('(') + numbers.join(QLatin1String(", ")) + QLatin1Char(')');
}

} // namespace

bool HandleTable::isConcerned(const Operation* operation)
{
    return operation && (hasLife(*operation, Life::Begins) || hasLife(*operation, Life::Ends));
}

bool HandleTable::isMaking(const Operation* operation)
{
    return operation && hasLife(*operation, Life::Begins);
}

void HandleTable::follow(const Call& call, const Operation& operation)
{
    if (!call.hasReturned() || KnownOperation::isFailure(operation, call.result))
        return;
    for (const Parameter& parameter : operation.parameters) {
        if (parameter.life == Life::Ends)
            end(handleOf(call.arguments.member(parameter.name)), call);
    }
    for (const Parameter& parameter : operation.parameters) {
        if (parameter.life == Life::Begins)
            add(parameter.role, call.outputs.member(parameter.name), call);
    }
    if (operation.result.life == Life::Begins)
        add(operation.result.role, call.result, call);
}

void HandleTable::follow(TraceFile& file, const CallEntry& entry)
{
    const Operation* const operation = file.operation(entry);
    if (!isConcerned(operation))
        return;
    const std::optional<Call> call = file.call(entry);
    if (call)
        follow(*call, *operation);
}

// A key that is handed back as it was given remains what it was. An array whose address is not
// recorded goes by the number of the call.
void HandleTable::add(Role role, const RecordedValue& value, const Call& call)
{
    const Kind kind = kindOf(role);
    QString handle = handleOf(value);
    if (kind == Kind::Array && handle.isEmpty() && value.role() == RecordedValue::Role::Text)
        handle = QStringLiteral("0x? (%1)").arg(call.number);
    if (!handle.startsWith(QLatin1String("0x")) || handle == QLatin1String("0x0") ||
        handle == firstHandle(call))
        return;
    const QString description = described(kind, call);
    const auto made = m_entries.insert(
        handle, {kind, handle, description, call.number, ++m_made[static_cast<int>(kind)]});
    if (m_listener)
        m_listener(handle, &*made, call.number);
}

void HandleTable::end(const QString& handle, const Call& call)
{
    if (m_entries.remove(handle) > 0 && m_listener)
        m_listener(handle, nullptr, call.number);
}

QString HandleTable::described(Kind kind, const Call& call) const
{
    switch (kind) {
    case Kind::Key: return keyPath(call);
    case Kind::Graphics: return asCall(call);
    case Kind::Search:
    case Kind::Array: break;
    }
    return firstText(call);
}

QString HandleTable::keyPath(const Call& call) const
{
    const QString parent = path(firstHandle(call));
    QString name = firstText(call);
    name.replace(QLatin1Char('/'), QLatin1Char('\\'));
    return name.isEmpty() ? parent : parent + QLatin1Char('\\') + name;
}

const HandleTable::Entry* HandleTable::find(const QString& handle) const
{
    const auto found = m_entries.constFind(handle);
    return found == m_entries.constEnd() ? nullptr : &*found;
}

QString HandleTable::path(const QString& handle) const
{
    const Entry* entry = find(handle);
    return entry ? entry->description : handle;
}

std::vector<HandleTable::Entry> HandleTable::all() const
{
    std::vector<Entry> entries(m_entries.begin(), m_entries.end());
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.maker < b.maker; });
    return entries;
}

} // namespace trace
