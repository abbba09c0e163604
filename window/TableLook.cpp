#include "window/TableLook.h"

#include <QHeaderView>
#include <QTableView>

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
