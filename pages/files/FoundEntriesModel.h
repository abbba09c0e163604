#pragma once

#include "inspection/files/FileSearch.h"

#include <QAbstractTableModel>

#include <vector>

/// The records of a search, in the order in which the service reported them.
class FoundEntriesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        AttributesColumn,
        SizeColumn,
        LastWriteColumn,
        CreationColumn,
        LastAccessColumn,
        ColumnCount
    };

    explicit FoundEntriesModel(QObject* parent = nullptr);

    void clear();
    void append(std::vector<FoundEntry> entries);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const FoundEntry& entry, int column);
    QString toolTip(const FoundEntry& entry, int column) const;

    std::vector<FoundEntry> m_entries;
};
