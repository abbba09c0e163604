#include "app/pages/TableLook.h"

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
