#pragma once

#include "inspection/log/LogParser.h"
#include "window/RecordsModel.h"

#include <QCoreApplication>

/// The entries of a log file as it grows. Of a long entry only the beginning is shown.
class LogTable : public RecordsModel<LogEntry>
{
    Q_DECLARE_TR_FUNCTIONS(LogTable)

public:
    explicit LogTable(QObject* parent = nullptr);

    /// Adds what has been read further.
    void add(LogPiece piece);

private:
    static std::vector<Column> columns();
};
