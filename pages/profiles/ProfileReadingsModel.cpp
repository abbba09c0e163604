#include "pages/profiles/ProfileReadingsModel.h"

#include "pages/profiles/ProfileText.h"
#include "window/ShownText.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <iterator>

namespace {

// What stands for a text that cannot be seen, or null.
QString placeholder(const ProfileReading& reading, int column)
{
    switch (column) {
    case ProfileReadingsModel::SectionColumn:
        return reading.section.isEmpty() ? ProfileReadingsModel::tr("(no name)") : QString();
    case ProfileReadingsModel::KeyColumn:
        return reading.key.isEmpty() ? ProfileReadingsModel::tr("(no name)") : QString();
    case ProfileReadingsModel::WideColumn:
        if (!reading.wide)
            return ProfileReadingsModel::tr("(not found)");
        return reading.wide->isEmpty() ? ProfileReadingsModel::tr("(empty)") : QString();
    case ProfileReadingsModel::NarrowColumn:
        return reading.narrow.isEmpty() ? ProfileReadingsModel::tr("(empty)") : QString();
    default: return {};
    }
}

} // namespace

ProfileReadingsModel::ProfileReadingsModel(QObject* parent) : QAbstractTableModel(parent) {}

void ProfileReadingsModel::clear()
{
    beginResetModel();
    m_readings.clear();
    endResetModel();
}

void ProfileReadingsModel::append(std::vector<ProfileReading> readings)
{
    if (readings.empty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(readings.size()) - 1);
    m_readings.insert(m_readings.end(), std::make_move_iterator(readings.begin()),
                      std::make_move_iterator(readings.end()));
    endInsertRows();
}

const ProfileReading& ProfileReadingsModel::reading(int row) const
{
    return m_readings[static_cast<std::size_t>(row)];
}

int ProfileReadingsModel::differences() const
{
    return static_cast<int>(
        std::count_if(m_readings.begin(), m_readings.end(),
                      [](const ProfileReading& reading) { return reading.differs(); }));
}

int ProfileReadingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_readings.size());
}

int ProfileReadingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProfileReadingsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const ProfileReading& each = reading(index.row());
    switch (role) {
    case Qt::DisplayRole: return text(each, index.column());
    case Qt::ToolTipRole: return toolTip(each, index.column());
    case Qt::FontRole: return font(each, index.column());
    case Qt::ForegroundRole: return foreground(each, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == DifferenceColumn ? QVariant(Qt::AlignCenter) : QVariant();
    default: return {};
    }
}

QString ProfileReadingsModel::text(const ProfileReading& reading, int column)
{
    QString stand = placeholder(reading, column);
    if (!stand.isNull())
        return stand;
    switch (column) {
    case SectionColumn: return shownText(reading.section);
    case KeyColumn: return shownText(reading.key);
    case WideColumn: return shownText(*reading.wide);
    case NarrowColumn: return shownText(reading.narrow);
    default: return QString(reading.differs() ? QChar(u'≠') : QLatin1Char('='));
    }
}

QString ProfileReadingsModel::toolTip(const ProfileReading& reading, int column)
{
    if (column == DifferenceColumn)
        return reading.differs() ? tr("The families read different values.")
                                 : tr("The families read the same value.");
    if (column == NarrowColumn && reading.narrow.isEmpty())
        return tr("Empty: the narrow family answers this for missing values too.");
    return plainToolTip(text(reading, column));
}

QVariant ProfileReadingsModel::font(const ProfileReading& reading, int column)
{
    if (!reading.differs() || column < WideColumn || !placeholder(reading, column).isNull())
        return {};
    QFont bold = QGuiApplication::font();
    bold.setBold(true);
    return bold;
}

QVariant ProfileReadingsModel::foreground(const ProfileReading& reading, int column)
{
    if (placeholder(reading, column).isNull())
        return {};
    return QGuiApplication::palette().placeholderText();
}

QVariant ProfileReadingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case SectionColumn: return tr("Section");
    case KeyColumn: return tr("Key");
    case WideColumn: return tr("Wide reading");
    case NarrowColumn: return tr("Narrow reading");
    default: return QString();
    }
}
