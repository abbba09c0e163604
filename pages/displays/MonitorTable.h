#pragma once

#include "inspection/displays/MonitorList.h"
#include "window/RecordsModel.h"

#include <QTableView>

/// What GetMonitorInfoW says about each monitor.
class MonitorTable : public QTableView
{
    Q_OBJECT

public:
    explicit MonitorTable(QWidget* parent = nullptr);

    /// What is selected stays so, as far as it is still there.
    void setMonitors(const std::vector<Monitor>& monitors);

private:
    std::vector<RecordColumn<Monitor>> columns() const;

    RecordsModel<Monitor> m_model;
};
