#pragma once

#include "trace/reading/Call.h"
#include "trace/reading/CallEntry.h"
#include "trace/reading/GrowingLines.h"
#include "trace/reading/NameTable.h"
#include "trace/reading/TraceFault.h"

#include <QCoreApplication>
#include <QFile>

#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace trace {

struct Operation;
struct ScannedLine;

/// A recording. What is kept of it in memory is an entry for each call; arguments and outputs are
/// read when they are asked for. A recording that is still being written is read on by `readOn`.
///
/// Of two lines with the same number the later one counts: a call is written when it begins and
/// again when it has returned.
class TraceFile
{
    Q_DECLARE_TR_FUNCTIONS(TraceFile)

public:
    static constexpr qint64 usualPiece = qint64{512} * 1024; ///< bytes, read in less than 5 ms
    static constexpr std::size_t mostFaults = 1000; ///< that are kept; the others are counted

    explicit TraceFile(const QString& path);

    TraceFile(const TraceFile&) = delete;
    TraceFile& operator=(const TraceFile&) = delete;

    /// False where the file cannot be read, or begins with no header; `error` tells why.
    bool open();
    /// In words, with the name of the file; empty where there is none.
    const QString& error() const { return m_error; }

    /// Reads as many bytes, from where it has stopped; false where there was nothing more, for now.
    /// Where the file has become shorter it is another recording, and is read from its beginning.
    bool readOn(qint64 size = usualPiece);
    /// How far the file is read, and how large it is, in bytes.
    qint64 readSize() const { return m_lines.readSize(); }
    qint64 size() const { return m_file.size(); }

    /// The calls, in the order of entry. What has been read stays where it is, unless a call that
    /// has entered before is written later, from another thread.
    const std::vector<CallEntry>& calls() const { return m_calls; }
    const QString& name(int number) const { return m_names.name(number); }
    int nameCount() const { return m_names.count(); }
    /// The row of a call in the table of operations; null where it has none.
    const Operation* operation(const CallEntry& entry) const;
    /// Where the call with that number stands among the calls; negative without.
    int indexOf(qint64 number) const;
    /// Where the first call stands whose number is that or higher; behind all where there is none.
    std::size_t placeFrom(qint64 number) const;
    /// The lowest number of the calls that have come or changed since this was asked before; 0
    /// where none has. After another recording it is that of its first call.
    qint64 takeChanged() { return std::exchange(m_changed, 0); }

    /// The line of a call, without its end.
    QByteArray line(const CallEntry& entry);
    /// All that is recorded of a call; nothing where its line cannot be read.
    std::optional<Call> call(const CallEntry& entry);

    const RecordedValue& header() const { return m_header; }
    /// The first line and the ones about libraries, as they are.
    const std::vector<QByteArray>& headLines() const { return m_headLines; }
    /// The line that ends a recording; empty where it has not ended as it should.
    const QByteArray& endLine() const { return m_endLine; }

    /// The lines that cannot be read, as far as they are kept.
    std::vector<TraceFault> faults() const;
    qint64 faultCount() const { return m_faultCount + (m_lines.isCut() ? 1 : 0); }

private:
    void restart();
    bool takeLine(const GrowingLines::Line& line);
    bool takeCall(const ScannedLine& scanned, const GrowingLines::Line& line);
    void takeHead(const GrowingLines::Line& line);
    bool takeFault(const GrowingLines::Line& line);
    void mergeNew();
    bool isHeaderGood();
    const Operation* findOperation(const ScannedLine& scanned, const CallEntry& entry);

    QFile m_file;
    GrowingLines m_lines;
    QString m_error;
    RecordedValue m_header;
    std::vector<QByteArray> m_headLines;
    QByteArray m_endLine;
    NameTable m_names;
    std::unordered_map<quint64, const Operation*> m_operations; ///< by manager and operation
    std::vector<CallEntry> m_calls;
    std::vector<CallEntry> m_new; ///< read and not merged yet
    qint64 m_changed = 0;         ///< the lowest number of what is new; 0: nothing is
    std::vector<TraceFault> m_faults;
    qint64 m_faultCount = 0;
    qint64 m_lastFault = 0; ///< its line

    QByteArray m_block; ///< of the file, for single lines
    qint64 m_blockStart = 0;
};

} // namespace trace
