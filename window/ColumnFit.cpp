#include "window/ColumnFit.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>
#include <limits>

namespace {

constexpr int rowsLookedAt = 100; // beyond those in view, for what a column holds
constexpr int unlimited = std::numeric_limits<int>::max();

struct Range
{
    int least;
    int most;
};

int total(const std::vector<Range>& ranges, int level)
{
    int sum = 0;
    for (const Range& range : ranges)
        sum += std::clamp(level, range.least, range.most);
    return sum;
}

// As wide as each other, as far as their ranges allow, and together as wide as the room.
std::vector<int> levelled(const std::vector<Range>& ranges, int room)
{
    int level = 0;
    int above = std::max(room, 0) + 1;
    while (above - level > 1) {
        const int middle = level + (above - level) / 2;
        (total(ranges, middle) <= room ? level : above) = middle;
    }
    std::vector<int> widths;
    widths.reserve(ranges.size());
    for (const Range& range : ranges)
        widths.push_back(std::clamp(level, range.least, range.most));
    return widths;
}

} // namespace

int sampleWidth(const QTableView& table, const QString& sample)
{
    const QFontMetrics metrics = table.fontMetrics();
    return metrics.horizontalAdvance(sample) + metrics.height() * 2 / 3;
}

ColumnFit::ColumnFit(QTableView* table)
    : QObject(table), m_table(table), m_takingRest{table->model()->columnCount() - 1}
{
    QHeaderView* header = table->horizontalHeader();
    header->setStretchLastSection(true);
    header->setTextElideMode(Qt::ElideRight);
    header->setMinimumSectionSize(table->fontMetrics().height());
    header->setResizeContentsPrecision(rowsLookedAt);
    table->installEventFilter(this);
    table->viewport()->installEventFilter(this);
    connect(header, &QHeaderView::sectionResized, this, &ColumnFit::follow);
    connect(table->model(), &QAbstractItemModel::modelReset, this, [this] { fit(); });
}

ColumnFit& ColumnFit::of(const QTableView& table)
{
    return *table.findChild<ColumnFit*>(QString(), Qt::FindDirectChildrenOnly);
}

void ColumnFit::setSamples(const QStringList& samples)
{
    m_samples = samples;
    fit();
}

void ColumnFit::setSample(int column, const QString& sample)
{
    while (m_samples.size() <= column)
        m_samples << QString();
    m_samples[column] = sample;
    fit();
}

void ColumnFit::giveRestTo(const std::set<int>& columns)
{
    m_takingRest = columns;
    fit();
}

ColumnFit::Need ColumnFit::needOf(int column) const
{
    const QString sample = m_samples.value(column);
    const bool takesRest = m_takingRest.count(column) > 0;
    int held = 0;
    if (!sample.isEmpty())
        held = sampleWidth(*m_table, sample);
    else if (!takesRest)
        held = static_cast<const QAbstractItemView*>(m_table)->sizeHintForColumn(column) +
               m_table->fontMetrics().height() / 2;
    const int title = m_table->horizontalHeader()->sectionSizeHint(column);
    const int wanted = std::max(held, title);
    const int narrow = std::min(m_table->fontMetrics().height() * 3, wanted);
    const int least = takesRest ? std::max(held, narrow) : narrow;
    return {least, std::max(least, title), wanted, takesRest};
}

std::vector<int> ColumnFit::widths(const std::vector<Need>& needs, int room)
{
    int wanted = 0;
    int titled = 0;
    for (const Need& need : needs) {
        wanted += need.wanted;
        titled += need.titled;
    }
    std::vector<Range> ranges;
    for (const Need& need : needs) {
        if (wanted <= room)
            ranges.push_back({need.wanted, need.takesRest ? unlimited : need.wanted});
        else if (titled <= room)
            ranges.push_back({need.titled, need.wanted});
        else
            ranges.push_back({need.least, need.titled});
    }
    return levelled(ranges, room);
}

// The columns before the first one stay as they are.
void ColumnFit::fit(int first)
{
    int room = m_table->viewport()->width();
    std::vector<int> columns;
    std::vector<Need> needs;
    for (int column = 0; column < m_table->model()->columnCount(); ++column) {
        if (column < first || m_dragged.count(column) > 0) {
            room -= m_table->columnWidth(column);
            continue;
        }
        columns.push_back(column);
        needs.push_back(needOf(column));
    }
    const std::vector<int> fitting = widths(needs, room);
    const QScopedValueRollback<bool> isFitting(m_isFitting, true);
    for (std::size_t i = 0; i < columns.size(); ++i)
        m_table->setColumnWidth(columns[i], fitting[i]);
}

// The edge that is dragged stays under the pointer: only what stands behind it gives way. The
// header itself resizes the last column.
void ColumnFit::follow(int resized)
{
    if (m_isFitting || resized == m_table->model()->columnCount() - 1)
        return;
    m_dragged.insert(resized);
    fit(resized + 1);
}

bool ColumnFit::eventFilter(QObject* watched, QEvent* event)
{
    // The type comes first: a table that goes has no viewport to be asked for, and sends others.
    const bool isResized = event->type() == QEvent::Resize && watched == m_table->viewport();
    const bool looksOtherwise =
        (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) &&
        watched == m_table;
    if (isResized || looksOtherwise)
        fit();
    return QObject::eventFilter(watched, event);
}
