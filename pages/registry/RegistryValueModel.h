#pragma once

#include "inspection/registry/RegistryIndex.h"
#include "inspection/registry/RegistryKey.h"

#include <QAbstractTableModel>

#include <memory>
#include <optional>
#include <vector>

/// The values of one key: names listed in one go, each value read through the service when it is
/// first looked at.
class RegistryValueModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Name,
        Type,
        Data,
        Raw,
        ColumnCount
    };

    /// Where a host library finds the value.
    enum class Place
    {
        InKey,       ///< in its key
        UnderRoot,   ///< asked for directly under a root: kept at name/name
        ListedAtRoot ///< an entry of the root itself: enumeration lists it, asking does not find it
    };

    struct Value
    {
        QString name;
        Place place = Place::InKey;
        RegistryReading reading;
        QString raw;
        QString remark; ///< why it is unreadable, or what is odd; else empty
    };

    explicit RegistryValueModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Shows the values of this key, read anew.
    /// `names` is used for the root alone, which has the whole store below it.
    void setPath(const QString& path, const RegistryIndex& names);
    QString path() const { return m_path; }

    /// Reads the value through the service unless it was read before.
    const Value& value(int row) const;
    /// Reads the value anew, and what the views show of it; false when it has gone meanwhile.
    bool refresh(int row);
    /// False when the value has gone meanwhile.
    bool isThere(int row) const;
    /// A value of which no more is known, and for which nothing is read.
    Value nameAndPlace(int row) const;
    /// The row of a name, or -1. A value that can be asked for comes before one that is listed.
    int rowOf(const QString& name) const;

private:
    struct Row
    {
        QString name;
        Place place;
        mutable std::optional<Value> value;
    };

    void listRoot(const RegistryIndex& names);
    Value read(const Row& row) const;
    QString entryPath(const Row& row) const;
    QVariant text(const Value& value, int column) const;
    QVariant decoration(const Value& value, int column) const;

    QString m_path;
    std::vector<Row> m_rows;
    std::unique_ptr<RegistryKey> m_key;
};
