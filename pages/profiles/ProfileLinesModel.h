#pragma once

#include "pages/profiles/ProfileColumns.h"
#include "window/SortableTableModel.h"

#include <QSet>

#include <memory>

class QTextCodec;

/// The lines of a profile, which are its records, each made when it is shown; the header over their
/// numbers stands as the numbers do.
class ProfileLinesModel : public SortableTableModel
{
public:
    explicit ProfileLinesModel(QObject* parent = nullptr);

    /// Shows another document; null shows none.
    void setDocument(std::shared_ptr<const ProfileDocument> document);
    const std::shared_ptr<const ProfileDocument>& document() const { return m_document; }

    /// What decodes the lines that are not UTF-8; null leaves them as the services read them.
    void setCodec(const QTextCodec* codec);
    const QTextCodec* codec() const { return m_codec; }

    /// Marks the wide entry of this line as not found.
    void setNotFound(int line);

    /// A line, from 0 on.
    ProfileDocument::Line line(int number) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    int recordCount() const override;
    SortKey sortKey(int record, int column) const override;

private:
    const ProfileDocument::Line& cached(int number) const;

    std::vector<RecordColumn<ProfileDocument::Line>> m_columns;
    std::shared_ptr<const ProfileDocument> m_document;
    const QTextCodec* m_codec = nullptr;
    QSet<int> m_notFound;
    // A view asks for all that a line has, one after the other.
    mutable ProfileDocument::Line m_line;
    mutable int m_cachedNumber = -1;
};
