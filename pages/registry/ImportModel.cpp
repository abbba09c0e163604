#include "pages/registry/ImportModel.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryKey.h"
#include "platform/WindowsTypes.h"
#include "platform/registry/TypeName.h"
#include "window/GlyphIcon.h"
#include "window/ShownText.h"

namespace {

using Outcome = ImportPlan::Outcome;
using Action = RegFileEntry::Action;

QString resultText(const ImportPlan::Statement& statement)
{
    switch (statement.outcome) {
    case Outcome::Refused: return ImportModel::tr("Refused: %1").arg(statement.remark);
    case Outcome::Altered: return statement.remark;
    case Outcome::Done: break;
    }
    switch (statement.entry.action) {
    case Action::CreateKey: return ImportModel::tr("Creates the key");
    case Action::SetValue: return ImportModel::tr("Sets the value");
    default: return ImportModel::tr("Deletes the value");
    }
}

QString dataText(const RegFileEntry& entry)
{
    if (entry.action != Action::SetValue)
        return QString();
    const QByteArray data = ImportCheck::dataToSet(entry);
    const int terminator = entry.type == REG_SZ ? static_cast<int>(sizeof(wchar_t)) : 0;
    return registryTypeName(entry.type) + QLatin1Char(' ') +
           RegistryFormat::data(entry.type, data.left(data.size() - terminator));
}

} // namespace

ImportModel::ImportModel(const ImportPlan& plan, QObject* parent)
    : QAbstractTableModel(parent), m_plan(plan)
{
    setOnlyRemarkable(false);
}

void ImportModel::setOnlyRemarkable(bool only)
{
    beginResetModel();
    m_rows.clear();
    for (std::size_t i = 0; i < m_plan.statements().size(); ++i) {
        if (!only || m_plan.statements()[i].outcome != Outcome::Done)
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
    const auto& statement = m_plan.statements()[m_rows[static_cast<std::size_t>(index.row())]];
    if (role == Qt::DisplayRole)
        return text(statement, index.column());
    if (role == Qt::ToolTipRole)
        return plainToolTip(text(statement, index.column()).toString());
    if (role != Qt::DecorationRole || index.column() != Result ||
        statement.outcome == Outcome::Done)
        return {};
    return glyphIcon(statement.outcome == Outcome::Refused ? Glyph::Error : Glyph::Warning);
}

QVariant ImportModel::text(const ImportPlan::Statement& statement, int column) const
{
    switch (column) {
    case Result: return resultText(statement);
    case Key: return statement.entry.key;
    case Name: return statement.entry.name;
    case Data: return dataText(statement.entry);
    case Line: return statement.entry.line;
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
