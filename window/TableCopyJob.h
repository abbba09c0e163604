#pragma once

#include "inspection/Job.h"

#include <QString>

#include <vector>

class QAbstractItemModel;

/// Writes rows of a table as a text: a line each, with a tab between two cells, as spreadsheets
/// take it. A cell that has tabs, line ends or quotation marks of its own stands in quotation
/// marks.
class TableCopyJob : public Job
{
public:
    enum Header
    {
        WithoutHeader,
        WithHeader
    };

    /// What a cell gives to be copied where it shows less than it has.
    static constexpr int wholeTextRole = Qt::UserRole + 1;

    /// A cell as it stands in such a text.
    static QString quoted(QString text);

    /// The model outlives the job, and keeps its rows until the job is done.
    TableCopyJob(const QAbstractItemModel& model, std::vector<int> rows, Header header);

    bool step() override;

    const QString& text() const { return m_text; }

private:
    void addHeader();
    void addRow(int row);
    void endCell(int column);

    const QAbstractItemModel& m_model;
    std::vector<int> m_rows;
    std::size_t m_next = 0;
    QString m_text;
};
