#pragma once

#include "trace/reading/Statistics.h"
#include "window/RecordsModel.h"

#include <QWidget>

class QTableView;

/// How often and how long each operation was called.
class OperationsPane : public QWidget
{
    Q_OBJECT

public:
    explicit OperationsPane(QWidget* parent = nullptr);

    void setStatistics(const trace::Statistics& statistics);

private:
    RecordsModel<trace::Statistics::OperationCount>* m_operations;
    QTableView* m_table;
};
