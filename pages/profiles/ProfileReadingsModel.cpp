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
    m_shown.clear();
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
    const int row = rowOfName(name);
    if (row >= 0)
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void ProfileReadingsModel::addDifference(int name)
{
    const auto place = std::lower_bound(m_differences.begin(), m_differences.end(), name);
    if (place != m_differences.end() && *place == name)
        return;
    m_differences.insert(place, name);
    if (!m_isFiltered)
        return;
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_shown.push_back(name);
    recordsAppended();
    endInsertRows();
}

void ProfileReadingsModel::showOnlyDifferences(bool only)
{
    beginResetModel();
    m_isFiltered = only;
    m_shown = only ? m_differences : std::vector<int>();
    forgetRows();
    endResetModel();
    sortAgain();
}

void ProfileReadingsModel::arrangeAgain()
{
    if (m_isFiltered && m_shown != m_differences)
        showOnlyDifferences(true);
    else
        sortAgain();
}

int ProfileReadingsModel::nameOf(int record) const
{
    return m_isFiltered ? m_shown[static_cast<std::size_t>(record)] : record;
}

int ProfileReadingsModel::nameAt(int row) const
{
    return nameOf(recordAt(row));
}

int ProfileReadingsModel::rowOfName(int name) const
{
    if (!m_isFiltered || name < 0)
        return name < 0 ? -1 : rowOf(name);
    const auto place = std::find(m_shown.begin(), m_shown.end(), name);
    return place != m_shown.end() ? rowOf(static_cast<int>(place - m_shown.begin())) : -1;
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

int ProfileReadingsModel::recordCount() const
{
    return m_isFiltered ? static_cast<int>(m_shown.size()) : nameCount();
}

SortKey ProfileReadingsModel::sortKey(int record, int column) const
{
    const ProfileReading reading = this->reading(nameOf(record));
    if (!reading.isRead && column >= ProfileColumns::WideColumn)
        return {};
    return cellSortKey(m_columns[static_cast<std::size_t>(column)], reading);
}

int ProfileReadingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : recordCount();
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
