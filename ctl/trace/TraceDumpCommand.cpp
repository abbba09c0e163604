#include "ctl/trace/TraceDumpCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "ctl/trace/RecordingColumns.h"
#include "trace/reading/CallText.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/HandleTable.h"

#include <QRegularExpression>

namespace {

QRegularExpression pattern(const Arguments& arguments)
{
    const QRegularExpression pattern(arguments.value("grep"));
    if (!pattern.isValid())
        throw Failure(ExitStatus::WrongUsage, TraceDumpCommand::tr("\"%1\" is no pattern: %2.")
                                                  .arg(pattern.pattern(), pattern.errorString()));
    return pattern;
}

QStringList cells(const trace::Call& call, const trace::Operation* operation,
                  const trace::CallText& text)
{
    return {QString::number(call.number),
            QString::number(call.depth),
            QString::number(call.thread),
            call.caller,
            call.manager,
            call.operation,
            text.arguments(call, operation),
            text.result(call, operation),
            QString::number(call.time),
            call.hasReturned() ? QString::number(call.duration) : QString()};
}

/// Prints the calls that are wanted, and follows what handles stand for through all of them.
class Dump
{
public:
    Dump(trace::TraceFile& file, const Arguments& arguments, Output& output)
        : m_file(file),
          m_filter(RecordingArgument::filter(arguments)),
          m_pattern(pattern(arguments)),
          m_text(m_handles),
          m_output(output)
    {
    }

    void add(const trace::CallEntry& entry);
    qint64 printed() const { return m_printed; }

private:
    void print(const trace::CallEntry& entry, const trace::Operation* operation);

    trace::TraceFile& m_file;
    trace::CallFilter m_filter;
    QRegularExpression m_pattern;
    trace::HandleTable m_handles;
    trace::CallText m_text;
    Output& m_output;
    qint64 m_printed = 0;
};

void Dump::add(const trace::CallEntry& entry)
{
    const trace::Operation* const operation = m_file.operation(entry);
    trace::HandleTable::inOrder(
        operation, [&] { m_handles.follow(m_file, entry); },
        [&] {
            if (m_filter.admits(m_file, entry))
                print(entry, operation);
        });
}

void Dump::print(const trace::CallEntry& entry, const trace::Operation* operation)
{
    const std::optional<trace::Call> call = m_file.call(entry);
    if (!call)
        return m_output.note(TraceDumpCommand::tr("Call %1 is damaged.").arg(entry.number));
    const QString line = m_text.line(*call, operation);
    if (!m_pattern.pattern().isEmpty() && !m_pattern.match(line).hasMatch())
        return;
    ++m_printed;
    const bool isBad = entry.isFailure || !entry.hasReturned();
    const bool isJson = m_output.form() == Output::Form::Json;
    m_output.line(isJson ? cells(*call, operation, m_text) : QStringList(), line,
                  isBad ? Output::Tone::Bad : Output::Tone::Plain);
}

} // namespace

void TraceDumpCommand::addOptions(QCommandLineParser& parser) const
{
    RecordingArgument::addFilterOptions(parser);
    parser.addOption({QStringLiteral("grep"),
                      tr("Only calls whose line matches this regular expression."),
                      QStringLiteral("PATTERN")});
}

ExitStatus TraceDumpCommand::run(const Arguments& arguments, Output& output)
{
    const auto file = RecordingArgument::read(arguments.at(0), output);
    Dump dump(*file, arguments, output);
    output.begin({RecordingColumns::call, RecordingColumns::depth, RecordingColumns::thread,
                  RecordingColumns::caller, RecordingColumns::manager, RecordingColumns::operation,
                  RecordingColumns::arguments, RecordingColumns::result, RecordingColumns::time,
                  RecordingColumns::duration});
    trace::CallWalk walk(*file, [&dump](const trace::CallEntry& entry) { dump.add(entry); });
    finish(walk);
    const bool isAll =
        !arguments.has("calls") && !arguments.has("failures") && !arguments.has("grep");
    return dump.printed() > 0 || isAll ? ExitStatus::Done : ExitStatus::No;
}
