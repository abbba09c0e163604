#include "pages/log/LogModel.h"

#include "window/GlyphIcon.h"
#include "window/ShownText.h"

#include <QFile>

namespace {

constexpr qint64 piece = 64LL * 1024;

// More than a line or a tool tip has room for. Views lay out all they are given: a dump of some
// megabytes would stall them.
constexpr int mostShown = 1000;

QString beginning(const QString& text)
{
    if (text.size() <= mostShown)
        return text;
    const bool splitsPair = text.at(mostShown - 1).isHighSurrogate();
    return text.left(splitsPair ? mostShown - 1 : mostShown) + QChar(0x2026);
}

} // namespace

LogModel::LogModel(const QString& file, QObject* parent) : QAbstractTableModel(parent), m_file(file)
{
}

QByteArray LogModel::nextPiece()
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    if (file.size() < m_position) {
        beginResetModel();
        m_lines.clear();
        m_position = 0;
        m_shown = 0;
        endResetModel();
    }
    file.seek(m_position);
    QByteArray bytes = file.read(piece);
    m_position += bytes.size();
    return bytes;
}

bool LogModel::readMore()
{
    const QByteArray bytes = nextPiece();
    if (bytes.isEmpty())
        return false;
    m_lines.add(bytes);
    const int count = static_cast<int>(m_lines.entries().size());
    // Lines may have been added to the last entry.
    if (m_shown > 0)
        emit dataChanged(index(m_shown - 1, 0), index(m_shown - 1, ColumnCount - 1));
    if (count > m_shown) {
        beginInsertRows({}, m_shown, count - 1);
        m_shown = count;
        endInsertRows();
    }
    return true;
}

int LogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown;
}

int LogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const LogEntry& entry = m_lines.entries()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return text(entry, index.column());
    case Qt::ToolTipRole: return plainToolTip(beginning(entry.text));
    case LevelRole: return static_cast<int>(entry.level);
    case LineRole: return entry.line;
    case Qt::DecorationRole:
        if (index.column() != Level)
            return {};
        if (entry.level == LogEntry::Level::Warning)
            return glyphIcon(Glyph::Warning);
        return entry.level == LogEntry::Level::Error ? glyphIcon(Glyph::Error) : QVariant();
    default: return {};
    }
}

QVariant LogModel::text(const LogEntry& entry, int column) const
{
    switch (column) {
    case Time: return entry.time;
    case Level: return levelName(entry.level);
    case Text: return beginning(entry.text).replace(QLatin1Char('\n'), QChar(0x21B5));
    default: return {};
    }
}

QString LogModel::levelName(LogEntry::Level level)
{
    switch (level) {
    case LogEntry::Level::Debug: return tr("Debug");
    case LogEntry::Level::Info: return tr("Information");
    case LogEntry::Level::Warning: return tr("Warning");
    case LogEntry::Level::Error: return tr("Error");
    case LogEntry::Level::None: break;
    }
    return QString();
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time: return tr("Time");
    case Level: return tr("Level");
    case Text: return tr("Message");
    default: return {};
    }
}
