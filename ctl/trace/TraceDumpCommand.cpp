#include "ctl/trace/TraceDumpCommand.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "ctl/trace/RecordingArgument.h"
#include "ctl/trace/RecordingColumns.h"
#include "trace/reading/CallText.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/HandleTable.h"

#include <QRegularExpression>
#include <QSet>
#include <QThread>

#include <memory>
#include <utility>

namespace {

constexpr unsigned long pause = 200; // milliseconds between two looks, each a `stat`

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

/// Reads a recording on while it is written, and prints each call once: when it has returned, or at
/// the end of the recording where it never has.
class DumpFollower
{
public:
    DumpFollower(trace::TraceFile& file, const Arguments& arguments, Output& output)
        : m_file(file),
          m_arguments(arguments),
          m_output(output),
          m_dump(std::make_unique<Dump>(file, arguments, output))
    {
    }

    /// Until the recording has ended, or the program is to end.
    void follow();
    qint64 printed() const { return m_former + m_dump->printed(); }

private:
    enum class Calls
    {
        Returned,
        All
    };

    void read();
    void print(qint64 first, Calls calls);

    trace::TraceFile& m_file;
    const Arguments& m_arguments;
    Output& m_output;
    std::unique_ptr<Dump> m_dump;
    QSet<qint64> m_done; ///< the numbers of the calls that have been looked at
    qint64 m_former = 0; ///< calls of recordings before, in the same file
};

void DumpFollower::follow()
{
    read();
    while (m_file.endLine().isEmpty() && !Interruption::isAsked()) {
        QThread::msleep(pause);
        read();
    }
    if (!Interruption::isAsked()) // the others may still return
        print(1, Calls::All);
}

// A file that has become shorter is another recording.
void DumpFollower::read()
{
    if (m_file.size() < m_file.readSize()) {
        m_former = printed();
        m_dump = std::make_unique<Dump>(m_file, m_arguments, m_output);
        m_done.clear();
    }
    while (m_file.readOn() && !Interruption::isAsked()) {
    }
    const qint64 changed = m_file.takeChanged();
    if (changed > 0)
        print(changed, Calls::Returned);
    m_output.flush();
}

void DumpFollower::print(qint64 first, Calls calls)
{
    for (std::size_t place = m_file.placeFrom(first); place < m_file.calls().size(); ++place) {
        const trace::CallEntry entry = m_file.calls()[place];
        const bool isWanted = calls == Calls::All || entry.hasReturned();
        if (!isWanted || m_done.contains(entry.number))
            continue;
        m_done.insert(entry.number);
        m_dump->add(entry);
    }
}

const std::vector<Column>& columns()
{
    static const std::vector<Column> all = {
        RecordingColumns::call,      RecordingColumns::depth,   RecordingColumns::thread,
        RecordingColumns::caller,    RecordingColumns::manager, RecordingColumns::operation,
        RecordingColumns::arguments, RecordingColumns::result,  RecordingColumns::time,
        RecordingColumns::duration};
    return all;
}

qint64 printAll(const Arguments& arguments, Output& output)
{
    const auto file = RecordingArgument::read(arguments.at(0), output);
    Dump dump(*file, arguments, output);
    output.begin(columns());
    trace::CallWalk walk(*file, [&dump](const trace::CallEntry& entry) { dump.add(entry); });
    finish(walk);
    return dump.printed();
}

qint64 printAndFollow(const Arguments& arguments, Output& output)
{
    const auto file = RecordingArgument::await(arguments.at(0));
    if (!file)
        return 0;
    DumpFollower follower(*file, arguments, output);
    output.begin(columns());
    follower.follow();
    return follower.printed();
}

} // namespace

void TraceDumpCommand::addOptions(QCommandLineParser& parser) const
{
    RecordingArgument::addFilterOptions(parser);
    parser.addOptions({
        {QStringLiteral("grep"), tr("Only calls whose line matches this regular expression."),
         QStringLiteral("PATTERN")},
        {QStringLiteral("follow"),
         tr("Goes on with the calls as they come, until the recording has ended or the command is "
            "interrupted.")},
    });
}

ExitStatus TraceDumpCommand::run(const Arguments& arguments, Output& output)
{
    const qint64 printed =
        arguments.has("follow") ? printAndFollow(arguments, output) : printAll(arguments, output);
    const bool isAll =
        !arguments.has("calls") && !arguments.has("failures") && !arguments.has("grep");
    return printed > 0 || isAll ? ExitStatus::Done : ExitStatus::No;
}
