#pragma once

#include "inspection/registry/RegistrySearchJob.h"

#include <QAbstractTableModel>

/// What a search has found.
class HitModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Key,
        Name,
        Data,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setHits(const std::vector<RegistrySearchJob::Hit>& hits);
    const RegistrySearchJob::Hit& hit(int row) const
    {
        return m_hits[static_cast<std::size_t>(row)];
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const RegistrySearchJob::Hit& found, int column);

    std::vector<RegistrySearchJob::Hit> m_hits;
};
