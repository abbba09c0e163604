#include "trace/reading/CallText.h"

#include "trace/Operations.h"
#include "trace/reading/HandleTable.h"

#include <QStringList>

namespace trace {

namespace {

constexpr int indentation = 2;

struct Unit
{
    const char* name;
    double nanoseconds;
};

constexpr Unit units[] = {{"us", 1e3}, {"ms", 1e6}, {"s", 1e9}};

Rows<BitName> namesOf(const Operation* operation, const std::string& parameter)
{
    const Parameter* const row = operation ? findParameter(*operation, parameter) : nullptr;
    return row ? row->names : Rows<BitName>();
}

} // namespace

CallText::CallText(const HandleTable& handles)
    : m_values([&handles](const QString& handle) {
          const HandleTable::Entry* const entry = handles.find(handle);
          return entry ? CallText::handle(handle, entry->description) : handle;
      })
{
}

CallText::CallText(ValueText::HandleText handleText) : m_values(std::move(handleText)) {}

QString CallText::handle(const QString& handle, const QString& description)
{
    return handle + QStringLiteral(" [%1]").arg(description);
}

QString CallText::line(const Call& call, const Operation* operation) const
{
    QString line = QString::number(call.number) + QLatin1Char(' ') +
                   QString(call.depth * indentation, QLatin1Char(' '));
    if (!call.caller.isEmpty())
        line += call.caller + QLatin1Char(' ');
    return line + call.operation + QLatin1Char('(') + arguments(call, operation) +
           QLatin1Char(')') + outcome(call, operation);
}

QString CallText::outcome(const Call& call, const Operation* operation) const
{
    if (!call.hasReturned())
        return QLatin1Char(' ') + tr("(never returned)");
    const QString shown = result(call, operation);
    return (shown.isEmpty() ? QString() : QLatin1String(" = ") + shown) +
           QStringLiteral(" (%1)").arg(time(call.duration));
}

QString CallText::arguments(const Call& call, const Operation* operation) const
{
    const QLatin1String arrow(" -> ");
    QStringList shown;
    for (const RecordedMember& argument : call.arguments.members) {
        const Rows<BitName> names = namesOf(operation, argument.name);
        const RecordedValue& written = call.outputs.member(argument.name.c_str());
        shown += QString::fromStdString(argument.name) + QLatin1String(" = ") +
                 m_values.of(argument.value, names) +
                 (written.isAbsent() ? QString() : arrow + m_values.of(written, names));
    }
    for (const RecordedMember& written : call.outputs.members) {
        if (call.arguments.member(written.name.c_str()).isAbsent())
            shown += QString::fromStdString(written.name) + arrow +
                     m_values.of(written.value, namesOf(operation, written.name));
    }
    return shown.join(QLatin1String(", "));
}

QString CallText::result(const Call& call, const Operation* operation) const
{
    if (operation && operation->result.role == Role::None)
        return {};
    return m_values.of(call.result, operation ? operation->result.names : Rows<BitName>());
}

QString CallText::time(qint64 nanoseconds)
{
    const auto exact = static_cast<double>(nanoseconds);
    const Unit* unit = units;
    while (unit + 1 != std::end(units) && exact >= (unit + 1)->nanoseconds)
        ++unit;
    return exact < units[0].nanoseconds ? QStringLiteral("%1 ns").arg(nanoseconds)
                                        : QStringLiteral("%1 %2")
                                              .arg(exact / unit->nanoseconds, 0, 'f', 1)
                                              .arg(QLatin1String(unit->name));
}

} // namespace trace
