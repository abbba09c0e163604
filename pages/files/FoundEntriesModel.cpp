#include "pages/files/FoundEntriesModel.h"

#include "inspection/files/FileAttributes.h"
#include "window/ShownText.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

#include <iterator>

namespace {

// The low word holds seconds since 1970, the high one nothing.
QString timeText(const FILETIME& time)
{
    return QDateTime::fromSecsSinceEpoch(time.dwLowDateTime)
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString rawText(const FILETIME& time)
{
    return QStringLiteral("dwLowDateTime %1, dwHighDateTime %2")
        .arg(time.dwLowDateTime)
        .arg(time.dwHighDateTime);
}

const FILETIME& timeOf(const FoundDetails& details, int column)
{
    switch (column) {
    case FoundEntriesModel::CreationColumn: return details.creation;
    case FoundEntriesModel::LastAccessColumn: return details.lastAccess;
    default: return details.lastWrite;
    }
}

bool isDetail(int column)
{
    return column >= FoundEntriesModel::SizeColumn;
}

} // namespace

FoundEntriesModel::FoundEntriesModel(QObject* parent) : QAbstractTableModel(parent) {}

void FoundEntriesModel::clear()
{
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

void FoundEntriesModel::append(std::vector<FoundEntry> entries)
{
    if (entries.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(entries.size()) - 1);
    m_entries.insert(m_entries.end(), std::make_move_iterator(entries.begin()),
                     std::make_move_iterator(entries.end()));
    endInsertRows();
}

int FoundEntriesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int FoundEntriesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FoundEntriesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const FoundEntry& entry = m_entries[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return text(entry, index.column());
    case Qt::ToolTipRole: return plainToolTip(toolTip(entry, index.column()));
    case Qt::ForegroundRole:
        if (isDetail(index.column()) && !entry.details)
            return QGuiApplication::palette().placeholderText();
        return {};
    default: return {};
    }
}

QString FoundEntriesModel::text(const FoundEntry& entry, int column)
{
    if (column == NameColumn)
        return entry.name;
    if (column == AttributesColumn)
        return attributesText(entry.attributes);
    if (!entry.details)
        return QStringLiteral("–");
    if (column == SizeColumn)
        return QLocale().toString(entry.details->size);
    return timeText(timeOf(*entry.details, column));
}

QString FoundEntriesModel::toolTip(const FoundEntry& entry, int column) const
{
    if (!isDetail(column))
        return text(entry, column);
    if (!entry.details)
        return tr("The service has not written this field: a caller finds in it what its record "
                  "held before the call.");
    if (column == SizeColumn)
        return QStringLiteral("nFileSizeHigh %1, nFileSizeLow %2")
            .arg(entry.details->size >> 32U)
            .arg(entry.details->size & 0xFFFFFFFFU);
    return rawText(timeOf(*entry.details, column));
}

QVariant FoundEntriesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn: return tr("Name");
    case AttributesColumn: return tr("Attributes");
    case SizeColumn: return tr("Size");
    case LastWriteColumn: return tr("Last written");
    case CreationColumn: return tr("Created");
    case LastAccessColumn: return tr("Last accessed");
    default: return {};
    }
}
