#include "pages/fonts/FontRecordsModel.h"

#include "inspection/fonts/CharacterSets.h"
#include "window/ShownText.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

FontRecordsModel::FontRecordsModel(QObject* parent) : QAbstractTableModel(parent) {}

void FontRecordsModel::setRecords(std::vector<RegisteredFont> records)
{
    beginResetModel();
    const QStringList families = QFontDatabase().families();
    m_installed = QSet<QString>(families.begin(), families.end());
    m_records = std::move(records);
    endResetModel();
}

int FontRecordsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int FontRecordsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FontRecordsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const RegisteredFont& record = m_records[static_cast<std::size_t>(index.row())];
    const bool preview = index.column() == PreviewColumn;
    switch (role) {
    case Qt::DisplayRole: return text(record, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(preview ? record.fullName : text(record, index.column()));
    case Qt::FontRole: return preview ? font(record) : QVariant();
    case Qt::ForegroundRole:
        if (preview && !isInstalled(record))
            return QGuiApplication::palette().placeholderText();
        return {};
    default: return {};
    }
}

QString FontRecordsModel::text(const RegisteredFont& font, int column) const
{
    switch (column) {
    case FaceColumn: return font.face;
    case StyleColumn: return font.style;
    case CharSetColumn: return CharacterSets::title(font.charSet);
    case ScriptColumn: return font.script;
    default:
        return isInstalled(font) ? CharacterSets::sample(font.charSet)
                                 : tr("(not installed on this system)");
    }
}

QVariant FontRecordsModel::font(const RegisteredFont& font) const
{
    if (!isInstalled(font))
        return {};
    QFont shown = QGuiApplication::font();
    shown.setFamily(font.face);
    shown.setStyleName(font.style);
    shown.setItalic(font.italic);
    return shown;
}

bool FontRecordsModel::isInstalled(const RegisteredFont& font) const
{
    return m_installed.contains(font.face);
}

QVariant FontRecordsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case FaceColumn: return tr("Family");
    case StyleColumn: return tr("Style");
    case CharSetColumn: return tr("Character set");
    case ScriptColumn: return tr("Script");
    default: return tr("Preview");
    }
}
