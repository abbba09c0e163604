#pragma once

#include "pages/profiles/ProfileColumns.h"
#include "window/SortableTableModel.h"

#include <QHash>

#include <memory>
#include <vector>

/// What a profile names, in the order of the file unless it is sorted, with what either family
/// reads under each name as far as it has been asked. Sorting asks for nothing: what has not been
/// read comes first.
class ProfileReadingsModel : public SortableTableModel
{
public:
    explicit ProfileReadingsModel(QObject* parent = nullptr);

    /// Shows another document, of which nothing has been read; null shows none.
    void setDocument(std::shared_ptr<const ProfileDocument> document);
    const std::shared_ptr<const ProfileDocument>& document() const { return m_document; }

    /// Puts in what the families have answered for a name of the document.
    void setReading(int name, const ProfileReading& reading);
    bool isRead(int name) const { return m_read.contains(name); }
    /// The names with an answer, and those of them with two different ones.
    int readCount() const { return m_read.size(); }
    int differenceCount() const { return static_cast<int>(m_differences.size()); }
    int nameCount() const { return m_document ? m_document->names().count() : 0; }

    /// Shows the names alone that are known to be read differently.
    void showOnlyDifferences(bool only);
    /// Puts the rows in their order again when many answers have come.
    void arrangeAgain() { sortAgain(); }

    /// Which name of the document stands in a row.
    int nameAt(int row) const;
    /// Where a name stands; -1 where it is not shown.
    int rowOf(int name) const;
    /// A reading; without answers, and not `isRead`, where the families have not been asked.
    ProfileReading reading(int name) const;
    /// The first name behind this one, -1 for none, that is read differently or has not been read;
    /// -1 where there is none up to the end.
    int nextCandidate(int name) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    int recordCount() const override;
    SortKey sortKey(int record, int column) const override;

private:
    int nameOf(int record) const;
    void addDifference(int name);
    const ProfileReading& cached(int name) const;

    std::vector<RecordColumn<ProfileReading>> m_columns;
    std::shared_ptr<const ProfileDocument> m_document;
    QHash<int, ProfileReading> m_read;
    std::vector<int> m_differences; ///< names, in their order
    bool m_isFiltered = false;
    // A view asks for all that a row has, one after the other.
    mutable ProfileReading m_reading;
    mutable int m_cachedName = -1;
};
