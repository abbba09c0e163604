#include "ctl/trace/RecordingFollower.h"

#include "trace/Operations.h"
#include "trace/reading/KnownOperation.h"

#include <cstdio>

namespace {

constexpr qint64 pieceSize = qint64{512} * 1024; // bytes

const trace::Operation* operationOf(const trace::Call& call)
{
    const std::string name = call.operation.toStdString();
    return call.isCallback ? trace::findCallback(name)
                           : trace::findOperation(call.manager.toStdString(), name);
}

// A call that was left by an exception has no result, and has failed.
bool hasFailed(const trace::Call& call, const trace::Operation* operation)
{
    return call.result.isAbsent() ||
           (operation && trace::KnownOperation::isFailure(*operation, call.result));
}

} // namespace

RecordingFollower::RecordingFollower(const QString& path, bool hasOnlyFailures)
    : m_file(path), m_lines(m_file), m_text(m_handles), m_hasOnlyFailures(hasOnlyFailures)
{
    m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void RecordingFollower::read(bool hasEnded)
{
    const auto receiver = [this](const trace::GrowingLines::Line& line) { return take(line); };
    while (m_lines.readOn(pieceSize, receiver) == trace::GrowingLines::Reading::More) {
    }
    if (!hasEnded)
        return;
    for (const auto& open : m_open)
        add(open.second);
    m_open.clear();
}

// A line that is no call may be one that is just being replaced: it is looked at again.
bool RecordingFollower::take(const trace::GrowingLines::Line& line)
{
    const std::optional<trace::Call> call = trace::Call::fromLine(line.text);
    if (!call)
        return false;
    if (!call->hasReturned()) {
        m_open[call->number] = *call;
        return false;
    }
    m_open.erase(call->number);
    add(*call);
    return true;
}

void RecordingFollower::add(const trace::Call& call)
{
    const trace::Operation* const operation = operationOf(call);
    trace::HandleTable::inOrder(
        operation,
        [&] {
            if (operation)
                m_handles.follow(call, *operation);
        },
        [&] { print(call, operation); });
}

void RecordingFollower::print(const trace::Call& call, const trace::Operation* operation) const
{
    if (m_hasOnlyFailures && !hasFailed(call, operation))
        return;
    const QByteArray text = m_text.line(call, operation).toLocal8Bit() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
}
