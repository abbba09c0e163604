#include "ctl/trace/TraceLeaksCommand.h"

#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "ctl/trace/RecordingColumns.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/Leaks.h"

namespace {

using Kind = trace::HandleTable::Kind;

QString kindName(Kind kind)
{
    switch (kind) {
    case Kind::Key: return QStringLiteral("key");
    case Kind::Search: return QStringLiteral("search");
    case Kind::Graphics: return QStringLiteral("graphics");
    case Kind::Array: break;
    }
    return QStringLiteral("array");
}

QString remark(Kind kind)
{
    return kind == Kind::Array
               ? TraceLeaksCommand::tr("A recording does not show whether an array was freed.")
               : QString();
}

} // namespace

// An array alone is no reason for a no: nobody can tell.
ExitStatus TraceLeaksCommand::run(const Arguments& arguments, Output& output)
{
    const auto file = RecordingArgument::read(arguments.at(0), output);
    trace::Leaks leaks(*file);
    trace::CallWalk walk(*file, [&leaks](const trace::CallEntry& entry) { leaks.add(entry); });
    finish(walk);
    if (file->endLine().isEmpty())
        output.note(tr("The recording has no end: the program was still running, or was killed."));
    output.begin({Columns::kind, RecordingColumns::handle, Columns::name, RecordingColumns::call,
                  RecordingColumns::caller, RecordingColumns::operation, Columns::remark});
    bool isAny = false;
    for (const trace::Leaks::Leak& leak : leaks.all()) {
        isAny = isAny || leak.handle.kind != Kind::Array;
        output.record({kindName(leak.handle.kind), leak.handle.handle, leak.handle.description,
                       QString::number(leak.handle.maker), leak.caller, leak.operation,
                       remark(leak.handle.kind)},
                      leak.handle.kind == Kind::Array ? Output::Tone::Plain : Output::Tone::Bad);
    }
    return isAny ? ExitStatus::No : ExitStatus::Done;
}
