#pragma once

#include "inspection/registry/ImportPlan.h"

#include <QAbstractTableModel>

/// The statements of a registry file and what will become of each.
class ImportModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Result,
        Key,
        Name,
        Data,
        Line,
        ColumnCount
    };

    /// `plan` outlives the model and no longer changes.
    explicit ImportModel(const ImportPlan& plan, QObject* parent = nullptr);

    /// Shows what is altered or refused, or everything.
    void setOnlyRemarkable(bool only);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant text(const ImportPlan::Statement& statement, int column) const;

    const ImportPlan& m_plan;
    std::vector<std::size_t> m_rows;
};
