#include "pages/trace/CallRows.h"

#include "window/GlyphIcon.h"
#include "window/TableCopyJob.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int mostKept = 2000;       // cells of calls
constexpr int longestShown = 300;    // characters of a cell
constexpr int longestTip = 1000;     // characters of a tool tip
constexpr int sortedCharacters = 64; // more are not kept for a million rows
constexpr int indentation = 2;

QString beginning(const QString& text, int length)
{
    return text.size() <= length ? text : text.left(length) + QChar(0x2026);
}

} // namespace

CallRows::CallRows(QObject* parent) : RecordsModel(columns(), parent) {}

std::vector<RecordColumn<qint64>> CallRows::columns()
{
    const auto number = [](qint64 call) { return SortKey::number(static_cast<double>(call)); };
    return {RecordColumn<qint64>(tr("Call"), [](qint64 call) { return QString::number(call); })
                .sortedBy(number),
            column(tr("Caller"), &Cells::caller),
            column(tr("Operation"), &Cells::operation),
            column(tr("Arguments"), &Cells::arguments),
            resultColumn(),
            durationColumn()};
}

RecordColumn<qint64> CallRows::column(const QString& title, Text text)
{
    const auto look = [this, text](qint64 call, int role) -> QVariant {
        if (role == Qt::ToolTipRole)
            return plainToolTip(beginning(cells(call).*text, longestTip));
        return role == TableCopyJob::wholeTextRole ? QVariant(cells(call).*text) : QVariant();
    };
    return RecordColumn<qint64>(
               title,
               [this, text](qint64 call) { return beginning(cells(call).*text, longestShown); },
               look)
        .sortedBy([this, text](qint64 call) {
            return SortKey::text((read(call).*text).left(sortedCharacters));
        });
}

RecordColumn<qint64> CallRows::resultColumn()
{
    RecordColumn<qint64> made = column(tr("Result"), &Cells::result);
    made.look = [this, look = made.look](qint64 call, int role) -> QVariant {
        if (role != Qt::DecorationRole)
            return look(call, role);
        const Cells& shown = cells(call);
        if (shown.duration < 0)
            return glyphIcon(Glyph::Error);
        if (shown.isFailure)
            return glyphIcon(Glyph::Warning);
        return {};
    };
    return made;
}

RecordColumn<qint64> CallRows::durationColumn()
{
    const auto text = [this](qint64 call) {
        const Cells& shown = cells(call);
        return shown.duration < 0 ? QString() : trace::CallText::time(shown.duration);
    };
    return RecordColumn<qint64>(tr("Duration"), text).sortedBy([this](qint64 call) {
        const auto& calls = m_recording->file().calls();
        const std::size_t place = m_recording->file().placeFrom(call);
        return place < calls.size() ? SortKey::number(static_cast<double>(calls[place].duration))
                                    : SortKey();
    });
}

void CallRows::setRecording(std::shared_ptr<trace::OpenRecording> recording)
{
    m_cells.clear();
    setRecords({});
    m_recording = std::move(recording);
}

void CallRows::readAgain()
{
    m_cells.clear();
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int CallRows::rowOfCall(qint64 number) const
{
    const auto found = std::lower_bound(records().begin(), records().end(), number);
    return found == records().end() || *found != number
               ? -1
               : rowOf(static_cast<int>(found - records().begin()));
}

const CallRows::Cells& CallRows::cells(qint64 number)
{
    const auto known = m_cells.constFind(number);
    if (known != m_cells.constEnd())
        return *known;
    if (m_cells.size() >= mostKept)
        m_cells.clear();
    return *m_cells.insert(number, read(number));
}

CallRows::Cells CallRows::read(qint64 number) const
{
    Cells cells;
    trace::TraceFile& file = m_recording->file();
    const int place = file.indexOf(number);
    if (place < 0)
        return cells;
    const trace::CallEntry& entry = file.calls()[static_cast<std::size_t>(place)];
    const std::optional<trace::Call> call = file.call(entry);
    cells.duration = entry.duration;
    cells.isFailure = entry.isFailure;
    if (!call) {
        cells.arguments = tr("The line of this call is damaged.");
        return cells;
    }
    const trace::CallText text = m_recording->text(number);
    const trace::Operation* const operation = file.operation(entry);
    cells.caller = call->caller;
    cells.operation = QString(call->depth * indentation, QLatin1Char(' ')) + call->operation;
    cells.arguments = text.arguments(*call, operation);
    cells.result = entry.hasReturned() ? text.result(*call, operation) : tr("never returned");
    return cells;
}
