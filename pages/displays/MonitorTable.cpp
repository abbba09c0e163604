#include "pages/displays/MonitorTable.h"

#include "window/ViewLook.h"

namespace {

// As in the record: the last pixel inside.
QString edges(const QRect& rect)
{
    return QStringLiteral("%1, %2, %3, %4")
        .arg(rect.left())
        .arg(rect.top())
        .arg(rect.right())
        .arg(rect.bottom());
}

} // namespace

MonitorTable::MonitorTable(QWidget* parent) : QTableWidget(0, 5, parent)
{
    setHorizontalHeaderLabels({tr("Monitor"), QStringLiteral("rcMonitor"), QStringLiteral("rcWork"),
                               QStringLiteral("dwFlags"), tr("Handle")});
    const QString tip = tr("Left, top, right, bottom. Right and bottom are the last pixel inside, "
                           "so that right - left is the width less one.");
    horizontalHeaderItem(1)->setToolTip(tip);
    horizontalHeaderItem(2)->setToolTip(tip);
    setAccessibleName(tr("Monitors"));
    arrangeTable(*this);
    setEditTriggers(NoEditTriggers);
}

void MonitorTable::setMonitors(const std::vector<Monitor>& monitors)
{
    setRowCount(static_cast<int>(monitors.size()));
    int row = 0;
    for (const Monitor& monitor : monitors) {
        const QString flags = monitor.isPrimary() ? tr("%1 (primary)") : QStringLiteral("%1");
        const QStringList cells = {monitorName(monitors, monitor.handle), edges(monitor.full),
                                   edges(monitor.work), flags.arg(monitor.flags),
                                   handleText(monitor.handle)};
        for (int column = 0; column < cells.size(); ++column)
            setItem(row, column, new QTableWidgetItem(cells.at(column)));
        ++row;
    }
    fitColumnsToContents(*this);
}
