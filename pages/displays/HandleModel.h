#pragma once

#include "inspection/displays/HandleScan.h"

#include <QAbstractTableModel>

/// Graphics handles with their type and what they stand for, as the service describes it.
class HandleModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        HandleColumn,
        TypeColumn,
        ObjectColumn,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setHandles(std::vector<GraphicsHandle> handles);
    int handleAt(int row) const { return m_handles[static_cast<std::size_t>(row)].value; }
    /// The row of a handle, -1 where it is not listed.
    int rowOf(int handle) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const GraphicsHandle& handle, int column) const;
    static QString typeName(int type);
    static QString describe(const GraphicsHandle& handle);

    std::vector<GraphicsHandle> m_handles;
};
