// Reading a recording of 1,000,000 calls, against a plain loop over the lines of the file: the
// index alone, and what `trace dump` and `trace stat` do.

#include "bench/Ratio.h"
#include "tests/support/RandomRecording.h"
#include "trace/reading/CallText.h"
#include "trace/reading/CallWalk.h"
#include "trace/reading/HandleTable.h"
#include "trace/reading/Statistics.h"
#include "trace/reading/TraceFile.h"

#include <QTemporaryDir>

#include <fstream>
#include <string>

namespace {

constexpr int calls = 1000000;

/// The recording, which is made once.
class Recording
{
public:
    static QString path()
    {
        static const Recording recording;
        return recording.m_folder.filePath(QStringLiteral("a.trace"));
    }

private:
    Recording()
    {
        QFile file(m_folder.filePath(QStringLiteral("a.trace")));
        if (file.open(QIODevice::WriteOnly))
            file.write(RandomRecording(1).make(calls));
    }

    QTemporaryDir m_folder;
};

void readLines()
{
    std::ifstream file(Recording::path().toStdString());
    std::size_t size = 0;
    for (std::string line; std::getline(file, line);)
        size += line.size();
    benchmark::DoNotOptimize(size);
}

void readAll(trace::TraceFile& file)
{
    file.open();
    while (file.readOn()) {
    }
}

void index()
{
    trace::TraceFile file(Recording::path());
    readAll(file);
    benchmark::DoNotOptimize(file.calls().size());
}

void dump()
{
    trace::TraceFile file(Recording::path());
    readAll(file);
    trace::HandleTable handles;
    const trace::CallText text(handles);
    qint64 size = 0;
    trace::CallWalk walk(file, [&](const trace::CallEntry& entry) {
        handles.follow(file, entry);
        const auto call = file.call(entry);
        size += call ? text.line(*call, file.operation(entry)).size() : 0;
    });
    while (walk.step()) {
    }
    benchmark::DoNotOptimize(size);
}

void stat()
{
    trace::TraceFile file(Recording::path());
    readAll(file);
    trace::Statistics statistics(file);
    trace::CallWalk walk(file, [&](const trace::CallEntry& entry) { statistics.add(entry); });
    while (walk.step()) {
    }
    benchmark::DoNotOptimize(statistics.asked().size());
}

void readRecording(benchmark::State& state, void (*ours)())
{
    readLines(); // once, so that the file is in memory
    compare(state, ours, readLines);
    state.SetItemsProcessed(state.iterations() * calls);
}

BENCHMARK_CAPTURE(readRecording, index, index)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readRecording, dump, dump)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(readRecording, stat, stat)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
