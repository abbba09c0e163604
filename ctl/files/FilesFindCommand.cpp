#include "ctl/files/FilesFindCommand.h"

#include "ctl/Failure.h"
#include "ctl/JobRun.h"
#include "ctl/Output.h"
#include "inspection/files/FileAttributes.h"
#include "inspection/files/FileSearchJob.h"
#include "inspection/files/FoundEntryText.h"

namespace {

// What the service has left as it was is empty for scripts.
QString sizeOf(const FoundEntry& entry, const Output& output)
{
    if (output.form() == Output::Form::Table)
        return FoundEntryText::size(entry);
    return entry.details ? QString::number(entry.details->size) : QString();
}

QString timeOf(const FoundEntry& entry, FoundEntryText::Time time, const Output& output)
{
    return entry.details || output.form() == Output::Form::Table ? FoundEntryText::time(entry, time)
                                                                 : QString();
}

void print(const FoundEntry& entry, Output& output)
{
    output.record({entry.name, attributesText(entry.attributes), sizeOf(entry, output),
                   timeOf(entry, &FoundDetails::creation, output),
                   timeOf(entry, &FoundDetails::lastAccess, output),
                   timeOf(entry, &FoundDetails::lastWrite, output)});
}

} // namespace

ExitStatus FilesFindCommand::run(const Arguments& arguments, Output& output)
{
    const QString pattern = arguments.at(0);
    const QString fault = FileSearchJob::fault(pattern);
    if (!fault.isEmpty())
        throw Failure(ExitStatus::No, fault);
    output.begin({Columns::name, Columns::attributes, Columns::size, Columns::created,
                  Columns::read, Columns::written});
    FileSearchJob job(pattern, [&output](const std::vector<FoundEntry>& entries) {
        for (const FoundEntry& entry : entries)
            print(entry, output);
    });
    finish(job);
    if (!job.remark().isEmpty())
        output.note(job.remark());
    return job.found() > 0 ? ExitStatus::Done : ExitStatus::No;
}
