#include "trace/reading/Call.h"

#include "trace/reading/JsonReader.h"

#include <utility>

namespace trace {

namespace {

bool takeNumber(std::string_view member, qint64 value, Call& call)
{
    if (member == "n")
        call.number = value;
    else if (member == "t")
        call.time = value;
    else if (member == "d")
        call.duration = value;
    else if (member == "in")
        call.enclosing = value;
    else if (member == "thread")
        call.thread = static_cast<int>(value);
    else if (member == "depth")
        call.depth = static_cast<int>(value);
    else
        return false;
    return true;
}

void takeText(std::string_view member, const QString& text, Call& call)
{
    if (member == "caller")
        call.caller = text;
    else if (member == "manager")
        call.manager = text;
    else if (member == "object")
        call.object = text;
    else if (member == "op" || member == "callback")
        call.operation = text;
}

void takeMember(std::string_view member, RecordedValue&& value, Call& call)
{
    if (member == "args")
        call.arguments = std::move(value);
    else if (member == "result")
        call.result = std::move(value);
    else if (member == "out")
        call.outputs = std::move(value);
    else if (!takeNumber(member, value.toInteger(), call))
        takeText(member, value.text, call);
    call.isCallback = call.isCallback || member == "callback";
}

} // namespace

QString Call::library(const QString& caller)
{
    return caller.left(caller.lastIndexOf(QLatin1Char('+')));
}

std::optional<Call> Call::fromLine(std::string_view line)
{
    JsonReader reader(line);
    if (!reader.enterObject())
        return {};
    Call call;
    std::string_view name;
    while (reader.nextMember(name))
        takeMember(name, reader.value(), call);
    if (!reader.isDone() || call.number <= 0)
        return {};
    return call;
}

} // namespace trace
