#include "pages/displays/MonitorTable.h"

#include "window/KeptPlace.h"
#include "window/ViewLook.h"

MonitorTable::MonitorTable(QWidget* parent) : QTableView(parent), m_model(columns())
{
    setModel(&m_model);
    setAccessibleName(tr("Monitors"));
    arrangeTable(*this);
}

std::vector<RecordColumn<Monitor>> MonitorTable::columns() const
{
    const QString tip = tr("Left, top, right, bottom. Right and bottom are the last pixel inside, "
                           "so that right - left is the width less one.");
    const auto name = [this](const Monitor& monitor) {
        return monitorName(m_model.records(), monitor.handle);
    };
    return {{tr("Monitor"), name},
            {QStringLiteral("rcMonitor"),
             [](const auto& monitor) { return edgesText(monitor.full); },
             {},
             tip},
            {QStringLiteral("rcWork"),
             [](const auto& monitor) { return edgesText(monitor.work); },
             {},
             tip},
            {QStringLiteral("dwFlags"), &flagsText},
            {tr("Handle"), [](const auto& monitor) { return handleText(monitor.handle); }}};
}

void MonitorTable::setMonitors(const std::vector<Monitor>& monitors)
{
    const KeptPlace place(*this,
                          [this](int row) { return handleText(m_model.record(row).handle); });
    m_model.setRecords(monitors);
    place.restore();
}
