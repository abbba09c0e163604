#include "fuzz/FuzzInput.h"
#include "fuzz/ScratchFile.h"
#include "trace/reading/CallFilter.h"
#include "trace/reading/CallText.h"
#include "trace/reading/Leaks.h"
#include "trace/reading/Statistics.h"
#include "trace/reading/TraceDifference.h"
#include "trace/reading/TraceFile.h"

using namespace trace;

namespace {

constexpr char header[] =
    R"({"quaysideTrace":1,"version":"1.0.0","architecture":"x86_64","program":["p"],)"
    R"("options":{"all":false,"hideData":false,"text":null},"libraries":[]})"
    "\n";

bool isRead(TraceFile& file, qint64 piece)
{
    if (!file.open()) {
        expectThat(!file.error().isEmpty(), "what cannot be read has a reason");
        return false;
    }
    while (file.readOn(piece)) {
    }
    return true;
}

QStringList linesOf(TraceFile& file)
{
    HandleTable handles;
    const CallText text(handles);
    QStringList lines;
    for (const CallEntry& entry : file.calls()) {
        if (const std::optional<Call> call = file.call(entry))
            lines += text.line(*call, file.operation(entry));
        handles.follow(file, entry);
    }
    return lines;
}

// A recording that is still being written comes in pieces of any size.
void expectPiecesToMakeTheWhole(const QString& path, qint64 piece)
{
    TraceFile whole(path);
    TraceFile pieces(path);
    const bool isWhole = isRead(whole, TraceFile::usualPiece);
    expectThat(isWhole == isRead(pieces, piece), "as much of a recording in pieces as in one");
    if (!isWhole)
        return;
    expectThat(linesOf(whole) == linesOf(pieces), "the same calls");
    expectThat(whole.faultCount() == pieces.faultCount(), "the same faults");
}

void countEverything(const QString& path, const QString& set)
{
    TraceFile file(path);
    if (!isRead(file, TraceFile::usualPiece))
        return;
    Statistics statistics(file);
    Leaks leaks(file);
    CallFilter filter;
    expectThat(filter.add(set) == filter.fault().isEmpty(), "a set that makes no sense is told");
    std::size_t admitted = 0;
    for (const CallEntry& entry : file.calls()) {
        statistics.add(entry);
        leaks.add(entry);
        admitted += filter.admits(file, entry) ? 1 : 0;
    }
    expectThat(!filter.isOpen() || admitted == file.calls().size(), "no filter admits all");
    qint64 counted = 0;
    for (const Statistics::OperationCount& count : statistics.operations())
        counted += count.calls;
    expectThat(counted <= static_cast<qint64>(file.calls().size()), "no call counts twice");
    expectThat(leaks.all().size() <= file.calls().size(), "a call leaks one thing at most");
}

void expectNoDifference(const QString& path)
{
    TraceFile first(path);
    TraceFile second(path);
    if (!isRead(first, TraceFile::usualPiece) || !isRead(second, TraceFile::usualPiece))
        return;
    TraceDifference difference(first, second);
    while (difference.step()) {
    }
    expectThat(difference.rows().empty(), "a recording is as itself");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const qint64 piece = input.ConsumeIntegralInRange(1, 100);
    const QString set = QString::fromStdString(input.text());
    QByteArray content = input.ConsumeBool() ? QByteArray(header) : QByteArray();
    content += QByteArray::fromStdString(input.ConsumeRemainingBytesAsString());
    const ScratchFile file(content);
    expectPiecesToMakeTheWhole(file.path(), piece);
    countEverything(file.path(), set);
    expectNoDifference(file.path());
    return 0;
}
