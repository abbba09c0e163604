#include "pages/profiles/ProfileLinesModel.h"

#include <algorithm>
#include <utility>

namespace {

// A table counts its height in pixels: with more lines the number would not be one any more.
constexpr int mostRows = 20'000'000;

} // namespace

ProfileLinesModel::ProfileLinesModel(QObject* parent)
    : QAbstractTableModel(parent), m_columns(ProfileColumns::ofLines())
{
}

void ProfileLinesModel::setDocument(std::shared_ptr<const ProfileDocument> document)
{
    beginResetModel();
    m_document = std::move(document);
    m_notFound.clear();
    m_cachedRow = -1;
    endResetModel();
}

void ProfileLinesModel::setCodec(const QTextCodec* codec)
{
    m_codec = codec;
    m_cachedRow = -1;
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void ProfileLinesModel::setNotFound(int line)
{
    m_notFound.insert(line);
    m_cachedRow = -1;
    emit dataChanged(index(line, 0), index(line, columnCount() - 1));
}

ProfileDocument::Line ProfileLinesModel::line(int row) const
{
    ProfileDocument::Line line = m_document->line(row, m_codec);
    if (m_notFound.contains(row))
        line.wide.state = LineState::NotFound;
    return line;
}

const ProfileDocument::Line& ProfileLinesModel::cached(int row) const
{
    if (row != m_cachedRow)
        m_line = line(row);
    m_cachedRow = row;
    return m_line;
}

int ProfileLinesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_document ? 0 : std::min(m_document->lines().count(), mostRows);
}

int ProfileLinesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant ProfileLinesModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() ? cellData(m_columns[static_cast<std::size_t>(index.column())],
                                      cached(index.row()), role)
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
