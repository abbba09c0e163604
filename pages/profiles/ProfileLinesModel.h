#pragma once

#include "inspection/profiles/ProfileDocument.h"

#include <QAbstractTableModel>

/// The lines of a profile with the margin that tells how each family reads them.
class ProfileLinesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NumberColumn,
        NarrowColumn,
        WideColumn,
        TextColumn,
        ColumnCount
    };

    explicit ProfileLinesModel(QObject* parent = nullptr);

    /// Must outlive the model.
    void setDocument(ProfileDocument* document);
    /// Marks the wide entries of this name as not found.
    void setNotFound(const ProfileDocument::Name& name);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const ProfileDocument::Line& line, int row, int column);
    static QString toolTip(const ProfileDocument::Line& line, int column);
    static QVariant foreground(const ProfileDocument::Line& line, int column);

    ProfileDocument* m_document = nullptr;
};
