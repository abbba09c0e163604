#include "trace/reading/TraceFile.h"

#include "trace/Operations.h"
#include "trace/reading/JsonReader.h"
#include "trace/reading/KnownOperation.h"
#include "trace/reading/ScannedLine.h"

#include <algorithm>

namespace trace {

namespace {

using Kind = ScannedLine::Kind;

constexpr qint64 knownVersion = 1;
constexpr qint64 blockSize = qint64{256} * 1024;

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray bytesOf(std::string_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

quint64 keyOf(const CallEntry& entry)
{
    return (static_cast<quint64>(entry.manager) << 32U) | static_cast<quint64>(entry.operation);
}

bool precedes(const CallEntry& a, const CallEntry& b)
{
    return a.number < b.number;
}

// Of neighbours with the same number the last one stays.
void dropFormer(std::vector<CallEntry>& entries, std::vector<CallEntry>::iterator from)
{
    auto to = from;
    for (auto it = from; it != entries.end(); ++it) {
        if (it + 1 == entries.end() || (it + 1)->number != it->number)
            *to++ = *it;
    }
    entries.erase(to, entries.end());
}

} // namespace

TraceFile::TraceFile(const QString& path) : m_file(path), m_lines(m_file) {}

bool TraceFile::open()
{
    if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        m_error = tr("%1 cannot be read: %2").arg(m_file.fileName(), m_file.errorString());
        return false;
    }
    if (m_file.isSequential()) {
        m_error = tr("%1 is no file: a recording is read more than once.").arg(m_file.fileName());
        return false;
    }
    readOn();
    return isHeaderGood();
}

// An empty file is one whose writer has only just started.
bool TraceFile::isHeaderGood()
{
    const RecordedValue& version = m_header.member("quaysideTrace");
    if (version.isAbsent())
        m_error = tr("%1 is no recording.").arg(m_file.fileName());
    else if (version.toInteger() != knownVersion)
        m_error = tr("%1 is a recording of a form that is not known here: %2.")
                      .arg(m_file.fileName(), version.text);
    return m_error.isEmpty();
}

bool TraceFile::readOn(qint64 size)
{
    const auto reading =
        m_lines.readOn(size, [this](const GrowingLines::Line& line) { return takeLine(line); });
    m_block.clear();
    if (reading == GrowingLines::Reading::Restarted)
        restart();
    mergeNew();
    return reading != GrowingLines::Reading::End;
}

void TraceFile::restart()
{
    m_header = {};
    m_headLines.clear();
    m_endLine.clear();
    m_names.clear();
    m_operations.clear();
    m_calls.clear();
    m_changed = 1;
    m_faults.clear();
    m_faultCount = 0;
    m_lastFault = 0;
}

bool TraceFile::takeLine(const GrowingLines::Line& line)
{
    if (line.number == m_lastFault) { // which is delivered again
        m_faults.resize(qMin(m_faults.size(), static_cast<std::size_t>(--m_faultCount)));
        m_lastFault = 0;
    }
    if (line.isTooLong)
        return takeFault(line);
    const ScannedLine scanned = ScannedLine::of(line.text);
    switch (scanned.kind) {
    case Kind::Damaged: return takeFault(line);
    case Kind::Call: return takeCall(scanned, line);
    case Kind::Header:
    case Kind::Library: takeHead(line); break;
    case Kind::End: m_endLine = bytesOf(line.text); break;
    case Kind::Other: break;
    }
    return true;
}

void TraceFile::takeHead(const GrowingLines::Line& line)
{
    if (line.number == 1)
        m_header = JsonReader(line.text).value();
    m_headLines.push_back(bytesOf(line.text));
}

bool TraceFile::takeCall(const ScannedLine& scanned, const GrowingLines::Line& line)
{
    CallEntry entry = scanned.entry;
    entry.offset = line.offset;
    entry.length = static_cast<quint32>(line.text.size());
    entry.caller = m_names.number(scanned.caller);
    entry.manager = m_names.number(scanned.manager);
    entry.operation = m_names.number(scanned.operation);
    const Operation* const operation = findOperation(scanned, entry);
    entry.isFailure = operation && !scanned.result.empty() &&
                      KnownOperation::isFailure(*operation, JsonReader(scanned.result).value());
    m_new.push_back(entry);
    return entry.hasReturned();
}

const Operation* TraceFile::findOperation(const ScannedLine& scanned, const CallEntry& entry)
{
    const auto [place, isNew] = m_operations.emplace(keyOf(entry), nullptr);
    if (isNew)
        place->second = entry.isCallback ? findCallback(scanned.operation)
                                         : trace::findOperation(scanned.manager, scanned.operation);
    return place->second;
}

const Operation* TraceFile::operation(const CallEntry& entry) const
{
    const auto found = m_operations.find(keyOf(entry));
    return found == m_operations.end() ? nullptr : found->second;
}

// A damaged line may be one that is just being replaced.
bool TraceFile::takeFault(const GrowingLines::Line& line)
{
    m_lastFault = line.number;
    if (m_faultCount++ < static_cast<qint64>(mostFaults))
        m_faults.push_back(
            {line.number, line.isTooLong ? TraceFault::Kind::TooLong : TraceFault::Kind::Damaged});
    return false;
}

// Calls come nearly in the order of their numbers; what comes late is put where it belongs.
void TraceFile::mergeNew()
{
    if (m_new.empty())
        return;
    std::stable_sort(m_new.begin(), m_new.end(), precedes);
    const qint64 first = m_new.front().number;
    m_changed = m_changed == 0 ? first : qMin(m_changed, first);
    const auto place = std::lower_bound(m_calls.begin(), m_calls.end(), m_new.front(), precedes);
    const auto from = place - m_calls.begin();
    const auto middle = static_cast<std::ptrdiff_t>(m_calls.size());
    m_calls.insert(m_calls.end(), m_new.begin(), m_new.end());
    m_new.clear();
    std::inplace_merge(m_calls.begin() + from, m_calls.begin() + middle, m_calls.end(), precedes);
    dropFormer(m_calls, m_calls.begin() + from);
}

std::size_t TraceFile::placeFrom(qint64 number) const
{
    CallEntry wanted;
    wanted.number = number;
    const auto found = std::lower_bound(m_calls.begin(), m_calls.end(), wanted, precedes);
    return static_cast<std::size_t>(found - m_calls.begin());
}

int TraceFile::indexOf(qint64 number) const
{
    const std::size_t place = placeFrom(number);
    return place == m_calls.size() || m_calls[place].number != number ? -1
                                                                      : static_cast<int>(place);
}

// Lines are mostly asked for in their order.
QByteArray TraceFile::line(const CallEntry& entry)
{
    const qint64 length = entry.length;
    if (entry.offset < m_blockStart || entry.offset + length > m_blockStart + m_block.size()) {
        m_file.seek(entry.offset);
        m_block = m_file.read(qMax(length, blockSize));
        m_blockStart = entry.offset;
    }
    return m_block.mid(static_cast<int>(entry.offset - m_blockStart), static_cast<int>(length));
}

std::optional<Call> TraceFile::call(const CallEntry& entry)
{
    return Call::fromLine(viewOf(line(entry)));
}

std::vector<TraceFault> TraceFile::faults() const
{
    std::vector<TraceFault> all = m_faults;
    if (m_lines.isCut())
        all.push_back({m_lines.cutLine(), TraceFault::Kind::Cut});
    return all;
}

} // namespace trace
