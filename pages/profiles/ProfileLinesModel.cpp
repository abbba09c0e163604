#include "pages/profiles/ProfileLinesModel.h"

#include <algorithm>
#include <utility>

namespace {

// A table counts its height in pixels: with more lines the number would not be one any more.
constexpr int mostRows = 20'000'000;

} // namespace

ProfileLinesModel::ProfileLinesModel(QObject* parent)
    : SortableTableModel(parent), m_columns(ProfileColumns::ofLines())
{
}

void ProfileLinesModel::setDocument(std::shared_ptr<const ProfileDocument> document)
{
    beginResetModel();
    m_document = std::move(document);
    m_notFound.clear();
    m_cachedNumber = -1;
    forgetRows();
    endResetModel();
    sortAgain();
}

void ProfileLinesModel::setCodec(const QTextCodec* codec)
{
    m_codec = codec;
    m_cachedNumber = -1;
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void ProfileLinesModel::setNotFound(int line)
{
    m_notFound.insert(line);
    m_cachedNumber = -1;
    const int row = rowOf(line);
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
}

ProfileDocument::Line ProfileLinesModel::line(int number) const
{
    ProfileDocument::Line line = m_document->line(number, m_codec);
    if (m_notFound.contains(number))
        line.wide.state = LineState::NotFound;
    return line;
}

const ProfileDocument::Line& ProfileLinesModel::cached(int number) const
{
    if (number != m_cachedNumber)
        m_line = line(number);
    m_cachedNumber = number;
    return m_line;
}

int ProfileLinesModel::recordCount() const
{
    return m_document ? std::min(m_document->lines().count(), mostRows) : 0;
}

SortKey ProfileLinesModel::sortKey(int record, int column) const
{
    return cellSortKey(m_columns[static_cast<std::size_t>(column)], line(record));
}

int ProfileLinesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : recordCount();
}

int ProfileLinesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ProfileLinesModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() ? cellData(m_columns[static_cast<std::size_t>(index.column())],
                                      cached(recordAt(index.row())), role)
                           : QVariant();
}

QVariant ProfileLinesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (section == ProfileColumns::NumberColumn && role == Qt::TextAlignmentRole)
        return {Qt::AlignRight | Qt::AlignVCenter};
    return headerCellData(m_columns[static_cast<std::size_t>(section)], role);
}
