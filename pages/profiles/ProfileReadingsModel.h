#pragma once

#include <QAbstractTableModel>

#include <optional>
#include <vector>

/// One name with what each family reads under it.
struct ProfileReading
{
    QString section;
    QString key;
    /// Nothing where the family finds no value.
    std::optional<QString> wide;
    /// The family does not tell a missing value from an empty one.
    QString narrow;

    bool differs() const { return wide.value_or(QString()) != narrow; }
};

/// The readings of both families side by side.
class ProfileReadingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        SectionColumn,
        KeyColumn,
        WideColumn,
        DifferenceColumn,
        NarrowColumn,
        ColumnCount
    };

    explicit ProfileReadingsModel(QObject* parent = nullptr);

    void clear();
    void append(std::vector<ProfileReading> readings);
    const ProfileReading& reading(int row) const;
    int differences() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const ProfileReading& reading, int column);
    static QString toolTip(const ProfileReading& reading, int column);
    static QVariant font(const ProfileReading& reading, int column);
    static QVariant foreground(const ProfileReading& reading, int column);

    std::vector<ProfileReading> m_readings;
};
