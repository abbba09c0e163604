#include "window/ViewLook.h"

#include "window/ColumnFit.h"
#include "window/ElidedTips.h"
#include "window/TableTools.h"
#include "window/ViewFocus.h"

#include <QHeaderView>
#include <QLayout>
#include <QTabWidget>
#include <QTableView>

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
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    new ViewFocus(&table);
    new ColumnFit(&table);
    new ElidedTips(&table);
    new TableTools(&table);
}
