#pragma once

#include "inspection/displays/MonitorList.h"
#include "window/Page.h"

#include <QTimer>

class HandlePanel;
class MetricsPanel;
class MonitorMap;
class MonitorTable;
class PointPanel;
class QTabWidget;

/// Which monitors a host library finds, the system metrics and the graphics handles.
class DisplaysPage : public Page
{
    Q_OBJECT

public:
    explicit DisplaysPage(QWidget* parent = nullptr);

    void refresh() override;
    void find() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void lookForChanges() override;

private:
    void makeMap();
    void makeTabs();
    void showMonitors();
    void showPoint();
    void followPointer();

    MonitorMap* m_map;
    PointPanel* m_point;
    QTabWidget* m_tabs;
    MonitorTable* m_table;
    MetricsPanel* m_metrics;
    HandlePanel* m_handles;
    std::vector<Monitor> m_monitors;
    QTimer m_timer;
};
