#pragma once

#include "trace/reading/OpenRecording.h"
#include "window/RecordsModel.h"

#include <QCoreApplication>
#include <QHash>

#include <memory>

/// Calls of a recording by their numbers. What a row shows is read when it comes into view.
class CallRows : public RecordsModel<qint64>
{
    Q_DECLARE_TR_FUNCTIONS(CallRows)

public:
    enum Column
    {
        NumberColumn,
        CallerColumn,
        OperationColumn,
        ArgumentsColumn,
        ResultColumn,
        DurationColumn
    };

    explicit CallRows(QObject* parent = nullptr);

    /// Empties the table.
    void setRecording(std::shared_ptr<trace::OpenRecording> recording);
    /// Reads what is in view again: calls may have returned meanwhile, or their handles be known.
    void readAgain();
    /// The row of a call; negative where it has none.
    int rowOfCall(qint64 number) const;

private:
    struct Cells
    {
        qint64 duration = -1; ///< in nanoseconds; negative where the call never returned
        bool isFailure = false;
        QString caller;
        QString operation;
        QString arguments;
        QString result;
    };
    using Text = QString Cells::*;

    std::vector<RecordColumn<qint64>> columns();
    RecordColumn<qint64> column(const QString& title, Text text);
    RecordColumn<qint64> resultColumn();
    RecordColumn<qint64> durationColumn();
    const Cells& cells(qint64 number);
    Cells read(qint64 number) const;

    std::shared_ptr<trace::OpenRecording> m_recording;
    QHash<qint64, Cells> m_cells; ///< of calls that were in view lately
};
