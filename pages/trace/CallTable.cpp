#include "pages/trace/CallTable.h"

#include "pages/trace/CallRows.h"
#include "window/ColumnFit.h"
#include "window/EmptyHint.h"
#include "window/ViewLook.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <utility>

CallTable::CallTable(QWidget* parent) : QTableView(parent), m_rows(new CallRows(this))
{
    setObjectName(QStringLiteral("calls"));
    setAccessibleName(tr("Calls"));
    setModel(m_rows);
    arrangeTable(*this);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ColumnFit& columns = ColumnFit::of(*this);
    columns.setSamples({QStringLiteral("1000000"), QStringLiteral("libsample.so+0x1a2b"),
                        QStringLiteral("GetPrivateProfileStringW"), QStringLiteral("key = HKEY"),
                        QStringLiteral("ERROR_FILE_NOT_FOUND.."), QStringLiteral("999.9 us")});
    columns.giveRestTo({CallRows::ArgumentsColumn});
    m_hint = new EmptyHint(this, QString());
    setRecording(nullptr);
    connect(&m_runner, &JobRunner::progressed, this, &CallTable::searched);
    connect(&m_runner, &JobRunner::finished, this, &CallTable::finish);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, &CallTable::chosen);
    connect(m_rows, &QAbstractItemModel::modelReset, this, &CallTable::chosen);
}

CallTable::~CallTable() = default;

void CallTable::setRecording(std::shared_ptr<trace::OpenRecording> recording)
{
    m_runner.cancel();
    m_search.reset();
    m_hint->setText(recording
                        ? tr("No call of the recording is like this.")
                        : tr("Open a recording, or drop one here: what host libraries asked and "
                             "what they were told, call by call. \"quaysidectl trace record "
                             "PROGRAM\" makes one."));
    m_recording = std::move(recording);
    m_rows->setRecording(m_recording);
}

void CallTable::search(const trace::CallSearch::Query& query)
{
    m_query = query;
    m_runner.cancel();
    m_pending = 0;
    const qint64 before = currentCall();
    m_rows->setRecords({});
    if (!m_recording)
        return;
    start(1, Way::Anew);
    if (before > 0)
        goTo(before, -1);
}

void CallTable::follow(qint64 changed)
{
    if (changed == 0 || !m_recording)
        return;
    if (isSearching())
        m_pending = m_pending == 0 ? changed : qMin(m_pending, changed);
    else
        start(changed, Way::Following);
}

void CallTable::start(qint64 first, Way way)
{
    m_first = first;
    m_way = way;
    m_found.clear();
    m_search = std::make_unique<trace::CallSearch>(
        *m_recording, m_query, [this](std::vector<qint64> found) { take(std::move(found)); },
        first);
    if (m_runner.start(*m_search))
        finish();
    else
        emit searched();
}

void CallTable::take(std::vector<qint64> found)
{
    if (m_way == Way::Anew)
        m_rows->append(std::move(found));
    else
        m_found.insert(m_found.end(), found.begin(), found.end());
}

void CallTable::finish()
{
    m_search.reset();
    if (m_way == Way::Following)
        mergeFound();
    m_rows->readAgain();
    emit searched();
    if (m_pending > 0)
        start(std::exchange(m_pending, 0), Way::Following);
}

// Mostly what was found before is found once more, and something behind it.
void CallTable::mergeFound()
{
    const std::vector<qint64>& shown = m_rows->records();
    const auto from = std::lower_bound(shown.begin(), shown.end(), m_first);
    const auto same = std::mismatch(from, shown.end(), m_found.begin(), m_found.end());
    if (same.first == shown.end())
        return m_rows->append({same.second, m_found.end()});
    std::vector<qint64> calls(shown.begin(), from);
    calls.insert(calls.end(), m_found.begin(), m_found.end());
    replace(std::move(calls));
}

void CallTable::replace(std::vector<qint64> calls)
{
    const qint64 call = currentCall();
    const int position = verticalScrollBar()->value();
    m_rows->setRecords(std::move(calls));
    goTo(call, position);
}

// A negative position stands for one where the call can be seen.
void CallTable::goTo(qint64 call, int position)
{
    const int row = m_rows->rowOfCall(call);
    if (row >= 0)
        setCurrentIndex(m_rows->index(row, 0));
    if (position >= 0)
        verticalScrollBar()->setValue(position);
}

qint64 CallTable::currentCall() const
{
    const QModelIndex current = currentIndex();
    return current.isValid() ? m_rows->record(current.row()) : 0;
}
