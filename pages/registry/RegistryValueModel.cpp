#include "pages/registry/RegistryValueModel.h"

#include "inspection/registry/ReadingRemark.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "pages/registry/ValueGlyph.h"
#include "platform/registry/TypeName.h"
#include "window/ShownText.h"

#include <QFont>
#include <QFontDatabase>

namespace {

QString placeRemark(RegistryValueModel::Place place, const QString& name)
{
    switch (place) {
    case RegistryValueModel::Place::UnderRoot:
        return RegistryValueModel::tr("Set directly under a root: kept in the key \"%1\"")
            .arg(name);
    case RegistryValueModel::Place::ListedAtRoot:
        return RegistryValueModel::tr(
                   "Only listed: asking for it by name looks into the key \"%1\"")
            .arg(name);
    case RegistryValueModel::Place::InKey: break;
    }
    return QString();
}

// The service makes a key of the name as it is, and separates in the value's own name alone.
QString keptUnderRoot(const QString& name)
{
    return RegistryPath::join(name, redirectedPath(name));
}

} // namespace

RegistryValueModel::RegistryValueModel(QObject* parent) : QAbstractTableModel(parent) {}

int RegistryValueModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RegistryValueModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

void RegistryValueModel::setPath(const QString& path, const RegistryIndex& names)
{
    beginResetModel();
    m_path = path;
    m_rows.clear();
    m_key = std::make_unique<RegistryKey>(path);
    if (path.isEmpty()) {
        listRoot(names);
    } else {
        const QStringList values = registryValueNames(path);
        for (const QString& name : values)
            m_rows.push_back({name, Place::InKey, {}});
    }
    endResetModel();
}

void RegistryValueModel::listRoot(const RegistryIndex& names)
{
    const RegistryIndex::Children children = names.children(QString());
    for (const QString& name : children.groups) {
        if (!rawRegistryEntry(keptUnderRoot(name)).isNull())
            m_rows.push_back({name, Place::UnderRoot, {}});
    }
    for (const QString& name : children.entries)
        m_rows.push_back({name, Place::ListedAtRoot, {}});
}

QString RegistryValueModel::entryPath(const Row& row) const
{
    return row.place == Place::UnderRoot ? keptUnderRoot(row.name)
                                         : RegistryPath::join(redirectedPath(m_path), row.name);
}

RegistryValueModel::Value RegistryValueModel::read(const Row& row) const
{
    Value value{row.name, row.place, {}, {}, {}};
    const QVariant entry = rawRegistryEntry(entryPath(row));
    value.raw = rawRegistryText(entry);
    value.reading = row.place == Place::ListedAtRoot ? readAtRegistryRoot(*m_key, row.name)
                                                     : m_key->read(row.name);
    value.remark = readingRemark(value.reading, entry);
    if (!value.reading.readable && !hasRegistryEntry(entryPath(row)))
        value.remark = tr("No longer there");
    else if (row.place == Place::InKey && isRedirected(row.name))
        value.remark = redirectedValueText(entryPath(row));
    else if (value.remark.isEmpty())
        value.remark = placeRemark(row.place, row.name);
    return value;
}

const RegistryValueModel::Value& RegistryValueModel::value(int row) const
{
    const Row& item = m_rows[static_cast<std::size_t>(row)];
    if (!item.value)
        item.value = read(item);
    return *item.value;
}

bool RegistryValueModel::refresh(int row)
{
    m_rows[static_cast<std::size_t>(row)].value.reset();
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    return isThere(row);
}

bool RegistryValueModel::isThere(int row) const
{
    return hasRegistryEntry(entryPath(m_rows[static_cast<std::size_t>(row)]));
}

RegistryValueModel::Value RegistryValueModel::nameAndPlace(int row) const
{
    const Row& item = m_rows[static_cast<std::size_t>(row)];
    return {item.name, item.place, {}, {}, {}};
}

int RegistryValueModel::rowOf(const QString& name) const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].name == name)
            return static_cast<int>(i);
    }
    return -1;
}

QVariant RegistryValueModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Value& item = value(index.row());
    switch (role) {
    case Qt::DisplayRole: return text(item, index.column());
    case Qt::DecorationRole: return decoration(item, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(item.remark.isEmpty() ? text(item, index.column()).toString()
                                                  : item.remark);
    case Qt::FontRole:
        if (index.column() == Raw)
            return QFontDatabase::systemFont(QFontDatabase::FixedFont);
        if (!item.reading.readable) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        return {};
    default: return {};
    }
}

QVariant RegistryValueModel::text(const Value& value, int column) const
{
    const bool readable = value.reading.readable;
    switch (column) {
    case Name: return value.name;
    case Type: return readable ? registryTypeName(value.reading.type) : tr("unreadable");
    case Data:
        return readable ? RegistryFormat::data(value.reading.type, value.reading.data)
                        : value.remark;
    case Raw: return value.raw;
    default: return {};
    }
}

QVariant RegistryValueModel::decoration(const Value& value, int column) const
{
    if (column == Name)
        return glyphIcon(value.reading.readable ? valueGlyph(value.reading.type) : Glyph::Error);
    if (column == Data && value.reading.readable && !value.remark.isEmpty())
        return glyphIcon(Glyph::Warning);
    return {};
}

QVariant RegistryValueModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::ToolTipRole && section == Raw)
        return tr("Raw: the text in the store, which no host library sees");
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name: return tr("Name");
    case Type: return tr("Type");
    case Data: return tr("Data");
    case Raw: return tr("Stored text (raw)");
    default: return {};
    }
}
