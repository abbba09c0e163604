#include "pages/profiles/ProfileLinesModel.h"

#include "pages/profiles/ProfileText.h"
#include "platform/profiles/LineStateText.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

bool isDropped(LineState state)
{
    return isLost(state) || state == LineState::Unreachable || state == LineState::NotFound;
}

bool isDull(LineState state)
{
    return isDropped(state) || state == LineState::Blank || state == LineState::Continuation;
}

} // namespace

ProfileLinesModel::ProfileLinesModel(QObject* parent) : QAbstractTableModel(parent) {}

void ProfileLinesModel::setDocument(ProfileDocument* document)
{
    beginResetModel();
    m_document = document;
    endResetModel();
}

void ProfileLinesModel::setNotFound(const ProfileDocument::Name& name)
{
    int row = 0;
    for (ProfileDocument::Line& line : m_document->lines()) {
        LineReading& reading = line.wide;
        if (reading.state == LineState::Entry && reading.section == name.first &&
            reading.key == name.second) {
            reading.state = LineState::NotFound;
            emit dataChanged(index(row, WideColumn), index(row, TextColumn));
        }
        ++row;
    }
}

int ProfileLinesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_document ? 0 : static_cast<int>(m_document->lines().size());
}

int ProfileLinesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProfileLinesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const ProfileDocument::Line& line = m_document->lines()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return text(line, index.row(), index.column());
    case Qt::ToolTipRole: return toolTip(line, index.column());
    case Qt::ForegroundRole: return foreground(line, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == NumberColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                              : QVariant();
    default: return {};
    }
}

QString ProfileLinesModel::text(const ProfileDocument::Line& line, int row, int column)
{
    switch (column) {
    case NumberColumn: return QString::number(row + 1);
    case NarrowColumn: return shortText(line.narrow);
    case WideColumn: return shortText(line.wide);
    default: return shownText(line.text);
    }
}

QString ProfileLinesModel::toolTip(const ProfileDocument::Line& line, int column)
{
    QString narrow = longText(line.narrow, ProfileFamily::Narrow);
    QString wide = longText(line.wide, ProfileFamily::Wide);
    if (column == NarrowColumn)
        return narrow;
    if (column == WideColumn)
        return wide;
    return tr("Narrow: %1\nWide: %2").arg(narrow, wide);
}

// What one of the families drops stands out, and what both drop recedes.
QVariant ProfileLinesModel::foreground(const ProfileDocument::Line& line, int column)
{
    const bool narrow = isDull(line.narrow.state);
    const bool wide = isDull(line.wide.state);
    const bool dull = column == NarrowColumn ? narrow
                      : column == WideColumn ? wide
                                             : column == NumberColumn || (narrow && wide);
    if (dull)
        return QGuiApplication::palette().placeholderText();
    return {};
}

QVariant ProfileLinesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && section == NumberColumn)
        return {Qt::AlignRight | Qt::AlignVCenter};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NumberColumn: return tr("No.", "number of a line");
    case NarrowColumn: return tr("Narrow");
    case WideColumn: return tr("Wide");
    default: return tr("Line (raw)");
    }
}
