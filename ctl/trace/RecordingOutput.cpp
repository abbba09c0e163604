#include "ctl/trace/RecordingOutput.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"
#include "ctl/Output.h"
#include "inspection/OutputFile.h"
#include "trace/reading/TraceFile.h"

#include <QCoreApplication>

namespace {

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(RecordingOutput)
};

bool isOutput(const QString& file)
{
    return file.isEmpty() || file == QLatin1String("-");
}

void put(const QByteArray& line, QIODevice& device)
{
    const QByteArray whole = line + '\n';
    if (device.write(whole) != whole.size())
        throw Failure(Texts::tr("The recording cannot be written: %1.").arg(device.errorString()));
}

void writeLines(trace::TraceFile& recording, const std::vector<qint64>& numbers, QIODevice& device)
{
    for (const QByteArray& line : recording.headLines())
        put(line, device);
    for (const qint64 number : numbers) {
        Interruption::check();
        const int index = recording.indexOf(number);
        put(recording.line(recording.calls()[static_cast<std::size_t>(index)]), device);
    }
    if (!recording.endLine().isEmpty())
        put(recording.endLine(), device);
}

void writeFile(trace::TraceFile& recording, const std::vector<qint64>& numbers, const QString& name)
{
    OutputFile result(name);
    bool isGood = result.open();
    if (isGood) {
        writeLines(recording, numbers, result.device());
        isGood = result.commit();
    }
    if (!isGood)
        throw Failure(
            Texts::tr("%1 cannot be written: %2.").arg(name, result.device().errorString()));
}

} // namespace

void RecordingOutput::check(const QString& file, const Output& output)
{
    if (isOutput(file) && output.form() == Output::Form::Json)
        throw Failure(ExitStatus::WrongUsage, Texts::tr("With --json, name a file to write."));
}

void RecordingOutput::write(trace::TraceFile& recording, const std::vector<qint64>& numbers,
                            const QString& file, Output& output)
{
    if (isOutput(file))
        writeLines(recording, numbers, output.device());
    else
        writeFile(recording, numbers, file);
}
