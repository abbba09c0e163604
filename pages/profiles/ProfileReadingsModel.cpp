#include "pages/profiles/ProfileReadingsModel.h"

#include <algorithm>
#include <utility>

ProfileReadingsModel::ProfileReadingsModel(QObject* parent)
    : SortableTableModel(parent), m_columns(ProfileColumns::ofReadings())
{
}

void ProfileReadingsModel::setDocument(std::shared_ptr<const ProfileDocument> document)
{
    beginResetModel();
    m_document = std::move(document);
    m_read.clear();
    m_differences.clear();
    m_cachedName = -1;
    forgetRows();
    endResetModel();
    sortAgain();
}

void ProfileReadingsModel::setReading(int name, const ProfileReading& reading)
{
    m_cachedName = -1;
    m_read.insert(name, reading);
    if (reading.differs())
        addDifference(name);
    const int row = rowOf(name);
    if (row >= 0)
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void ProfileReadingsModel::addDifference(int name)
{
    const auto place = std::lower_bound(m_differences.begin(), m_differences.end(), name);
    if (place != m_differences.end() && *place == name)
        return;
    const int record = static_cast<int>(place - m_differences.begin());
    if (!m_isFiltered) {
        m_differences.insert(place, name);
        return;
    }
    const int row = isSorted() ? differenceCount() : record;
    beginInsertRows({}, row, row);
    m_differences.insert(place, name);
    recordInserted(record);
    endInsertRows();
}

void ProfileReadingsModel::showOnlyDifferences(bool only)
{
    beginResetModel();
    m_isFiltered = only;
    forgetRows();
    endResetModel();
    sortAgain();
}

int ProfileReadingsModel::nameOf(int record) const
{
    return m_isFiltered ? m_differences[static_cast<std::size_t>(record)] : record;
}

int ProfileReadingsModel::nameAt(int row) const
{
    return nameOf(recordAt(row));
}

int ProfileReadingsModel::rowOf(int name) const
{
    if (!m_isFiltered)
        return SortableTableModel::rowOf(name);
    const auto place = std::lower_bound(m_differences.begin(), m_differences.end(), name);
    return place != m_differences.end() && *place == name
               ? SortableTableModel::rowOf(static_cast<int>(place - m_differences.begin()))
               : -1;
}

ProfileReading ProfileReadingsModel::reading(int name) const
{
    const auto found = m_read.find(name);
    if (found != m_read.end())
        return *found;
    const auto [section, key] = m_document->name(name);
    return {section, key, {}, {}, false};
}

int ProfileReadingsModel::nextCandidate(int name) const
{
    const auto difference = std::upper_bound(m_differences.begin(), m_differences.end(), name);
    const int end = difference == m_differences.end() ? nameCount() : *difference;
    int next = name + 1;
    while (next < end && isRead(next))
        ++next;
    return next < nameCount() ? next : -1;
}

const ProfileReading& ProfileReadingsModel::cached(int name) const
{
    if (name != m_cachedName)
        m_reading = reading(name);
    m_cachedName = name;
    return m_reading;
}

int ProfileReadingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : recordCount();
}

int ProfileReadingsModel::recordCount() const
{
    return m_isFiltered ? differenceCount() : nameCount();
}

SortKey ProfileReadingsModel::sortKey(int record, int column) const
{
    const int name = nameOf(record);
    const bool isName =
        column == ProfileColumns::SectionColumn || column == ProfileColumns::KeyColumn;
    if (!isName && !isRead(name))
        return {};
    return SortKey::text(m_columns[static_cast<std::size_t>(column)].text(reading(name)));
}

int ProfileReadingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ProfileReadingsModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() ? cellData(m_columns[static_cast<std::size_t>(index.column())],
                                      cached(nameAt(index.row())), role)
                           : QVariant();
}

QVariant ProfileReadingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    return headerCellData(m_columns[static_cast<std::size_t>(section)], role);
}
