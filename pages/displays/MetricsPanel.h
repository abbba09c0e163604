#pragma once

#include <QWidget>

class AnswerField;
class QSpinBox;
class QTableWidget;

/// System metrics as GetSystemMetrics answers them.
class MetricsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MetricsPanel(QWidget* parent = nullptr);

    /// Asks anew.
    void refresh();

private:
    QWidget* makeQuery();
    void ask();
    void fillRow(int row);

    QTableWidget* m_table;
    QSpinBox* m_index = nullptr;
    AnswerField* m_value = nullptr;
};
