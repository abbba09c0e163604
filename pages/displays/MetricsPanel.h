#pragma once

#include "inspection/displays/SystemMetrics.h"
#include "window/RecordsModel.h"

#include <QWidget>

class AnswerField;
class QSpinBox;
class QTableView;

/// System metrics as GetSystemMetrics answers them.
class MetricsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MetricsPanel(QWidget* parent = nullptr);

    /// Asks anew; what is selected stays so.
    void refresh();
    /// Asks anew, and says whether an answer has changed.
    bool lookForChanges();

private:
    QLayout* makeQuery();
    void ask();

    RecordsModel<SystemMetric> m_model;
    QTableView* m_view;
    QSpinBox* m_index = nullptr;
    AnswerField* m_value = nullptr;
};
