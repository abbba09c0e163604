#pragma once

#include "inspection/displays/MonitorList.h"

#include <QTableWidget>

/// What GetMonitorInfoW says about each monitor.
class MonitorTable : public QTableWidget
{
    Q_OBJECT

public:
    explicit MonitorTable(QWidget* parent = nullptr);

    void setMonitors(const std::vector<Monitor>& monitors);
};
