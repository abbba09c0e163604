#pragma once

#include "inspection/fonts/FontCatalogue.h"

#include <QAbstractTableModel>
#include <QSet>

/// Font records, each with a line in its own font.
class FontRecordsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        FaceColumn,
        StyleColumn,
        CharSetColumn,
        ScriptColumn,
        PreviewColumn,
        ColumnCount
    };

    explicit FontRecordsModel(QObject* parent = nullptr);

    void setRecords(std::vector<RegisteredFont> records);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool isInstalled(const RegisteredFont& font) const;
    QString text(const RegisteredFont& font, int column) const;
    QVariant font(const RegisteredFont& font) const;

    std::vector<RegisteredFont> m_records;
    QSet<QString> m_installed; ///< the system's families
};
