#include "window/ViewLook.h"

#include "window/TableTools.h"
#include "window/ViewFocus.h"

#include <QEvent>
#include <QHeaderView>
#include <QLayout>
#include <QTabWidget>
#include <QTableView>

#include <algorithm>

// In document mode tabs have no pane: its colour looks like an island on a dark page.
void arrangeTabs(QTabWidget& tabs)
{
    tabs.setDocumentMode(true);
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (QLayout* layout = tabs.widget(tab)->layout())
            layout->setContentsMargins(0, layout->contentsMargins().top(), 0, 0);
    }
}

void arrangeTable(QTableView& table)
{
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false);
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() * 3 / 2);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setStretchLastSection(true);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    new ViewFocus(&table);
    new TableTools(&table);
}

int sampleWidth(const QTableView& table, const QString& sample)
{
    const QFontMetrics metrics = table.fontMetrics();
    return metrics.horizontalAdvance(sample) + metrics.height() * 2 / 3;
}

void fitColumns(QTableView& table, const QStringList& samples)
{
    for (int column = 0; column < samples.size(); ++column)
        table.setColumnWidth(column, sampleWidth(table, samples[column]));
}

void fitColumnsToContents(QTableView& table)
{
    table.resizeColumnsToContents();
    const int columns = table.model()->columnCount();
    for (int column = 0; column + 1 < columns; ++column)
        table.setColumnWidth(column, table.columnWidth(column) + table.fontMetrics().height() / 2);
}

ColumnBalancer::ColumnBalancer(QTableView* table, int column, const QString& sample)
    : QObject(table), m_table(table), m_column(column), m_least(sampleWidth(*table, sample))
{
    // The last column takes what is left, but never less than this.
    table->setColumnWidth(table->model()->columnCount() - 1, table->fontMetrics().height() * 4);
    table->viewport()->installEventFilter(this);
    connect(table->horizontalHeader(), &QHeaderView::sectionResized, this, &ColumnBalancer::follow);
}

void ColumnBalancer::follow(int resized)
{
    if (m_sharing || resized == m_table->model()->columnCount() - 1)
        return;
    m_dragged = m_dragged || resized == m_column;
    share();
}

void ColumnBalancer::share()
{
    if (m_dragged)
        return;
    int rest = m_table->viewport()->width();
    for (int column = 0; column < m_table->model()->columnCount() - 1; ++column)
        rest -= column == m_column ? 0 : m_table->columnWidth(column);
    const QHeaderView* header = m_table->horizontalHeader();
    const int titled = rest - header->sectionSizeHint(header->count() - 1);
    m_sharing = true;
    m_table->setColumnWidth(m_column, std::max(std::min(rest / 2, titled), m_least));
    m_sharing = false;
}

bool ColumnBalancer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        share();
    return QObject::eventFilter(watched, event);
}
