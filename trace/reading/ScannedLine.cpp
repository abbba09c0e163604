#include "trace/reading/ScannedLine.h"

#include "trace/reading/JsonReader.h"

#include <limits>

namespace trace {

namespace {

using Kind = ScannedLine::Kind;

bool takeNumber(std::string_view member, JsonReader& reader, CallEntry& entry)
{
    if (member == "n")
        entry.number = reader.integer();
    else if (member == "t")
        entry.time = reader.integer();
    else if (member == "d")
        entry.duration = reader.integer();
    else if (member == "in")
        entry.enclosing = reader.integer();
    else if (member == "thread")
        entry.thread = static_cast<int>(reader.integer());
    else if (member == "depth")
        entry.depth = static_cast<qint16>(
            qBound<qint64>(0, reader.integer(), std::numeric_limits<qint16>::max()));
    else
        return false;
    return true;
}

bool takeText(std::string_view member, JsonReader& reader, ScannedLine& line)
{
    if (member == "caller")
        line.caller = reader.rawText();
    else if (member == "manager")
        line.manager = reader.rawText();
    else if (member == "op" || member == "callback")
        line.operation = reader.rawText();
    else
        return false;
    line.entry.isCallback = line.entry.isCallback || member == "callback";
    return true;
}

Kind kindOf(std::string_view member, Kind kind)
{
    if (member == "quaysideTrace")
        return Kind::Header;
    if (member == "library")
        return Kind::Library;
    if (member == "ended")
        return Kind::End;
    return member == "n" ? Kind::Call : kind;
}

} // namespace

ScannedLine ScannedLine::of(std::string_view text)
{
    JsonReader reader(text);
    ScannedLine line;
    Kind kind = Kind::Other;
    std::string_view member;
    reader.enterObject();
    while (reader.nextMember(member)) {
        kind = kindOf(member, kind);
        if (takeNumber(member, reader, line.entry) || takeText(member, reader, line))
            continue;
        const std::string_view value = reader.skip();
        if (member == "result")
            line.result = value;
    }
    const bool isProper = reader.isDone() && (kind != Kind::Call || line.entry.number > 0);
    line.kind = isProper ? kind : Kind::Damaged;
    return line;
}

} // namespace trace
