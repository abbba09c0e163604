#include "pages/registry/ImportModel.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryKey.h"
#include "platform/WindowsTypes.h"
#include "window/GlyphIcon.h"
#include "window/ShownText.h"

namespace {

using Verdict = RegistryImport::Verdict;
using Action = RegFileEntry::Action;

QString resultText(const RegistryImport::Item& item)
{
    switch (item.verdict) {
    case Verdict::Refused: return ImportModel::tr("Refused: %1").arg(item.remark);
    case Verdict::Altered: return item.remark;
    case Verdict::Done: break;
    }
    switch (item.entry.action) {
    case Action::CreateKey: return ImportModel::tr("Creates the key");
    case Action::SetValue: return ImportModel::tr("Sets the value");
    default: return ImportModel::tr("Deletes the value");
    }
}

QString dataText(const RegFileEntry& entry)
{
    if (entry.action != Action::SetValue)
        return QString();
    const QByteArray data = entry.type == REG_SZ ? registryTextData(entry.text) : entry.data;
    const int terminator = entry.type == REG_SZ ? static_cast<int>(sizeof(wchar_t)) : 0;
    return RegistryFormat::typeName(entry.type) + QLatin1Char(' ') +
           RegistryFormat::data(entry.type, data.left(data.size() - terminator));
}

} // namespace

ImportModel::ImportModel(const RegistryImport& import, QObject* parent)
    : QAbstractTableModel(parent), m_import(import)
{
    setOnlyRemarkable(false);
}

void ImportModel::setOnlyRemarkable(bool only)
{
    beginResetModel();
    m_rows.clear();
    for (std::size_t i = 0; i < m_import.items().size(); ++i) {
        if (!only || m_import.items()[i].verdict != Verdict::Done)
            m_rows.push_back(i);
    }
    endResetModel();
}

int ImportModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ImportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto& item = m_import.items()[m_rows[static_cast<std::size_t>(index.row())]];
    if (role == Qt::DisplayRole)
        return text(item, index.column());
    if (role == Qt::ToolTipRole)
        return plainToolTip(text(item, index.column()).toString());
    if (role != Qt::DecorationRole || index.column() != Result || item.verdict == Verdict::Done)
        return {};
    return glyphIcon(item.verdict == Verdict::Refused ? Glyph::Error : Glyph::Warning);
}

QVariant ImportModel::text(const RegistryImport::Item& item, int column) const
{
    switch (column) {
    case Result: return resultText(item);
    case Key: return item.entry.key;
    case Name: return item.entry.name;
    case Data: return dataText(item.entry);
    case Line: return item.entry.line;
    default: return {};
    }
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Result: return tr("What happens");
    case Key: return tr("Key");
    case Name: return tr("Name");
    case Data: return tr("Type and data");
    case Line: return tr("Line");
    default: return {};
    }
}
