#include "pages/registry/RegistryTreeModel.h"

#include "inspection/registry/KeyNode.h"
#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryPath.h"
#include "pages/registry/RegistryGlyph.h"
#include "window/GlyphIcon.h"

#include <QFont>

#include <algorithm>

namespace {

// A key with very many sub-keys shows them in batches as the view is scrolled.
constexpr int batch = 2000;

bool contains(const QStringList& sorted, const QString& name)
{
    return std::binary_search(sorted.cbegin(), sorted.cend(), name);
}

QIcon icon(const KeyNode& node)
{
    if (!node.parent())
        return glyphIcon(&drawRegistryGlyph);
    return glyphIcon(isRedirected(node.path()) ? Glyph::Warning : Glyph::Key);
}

QString toolTip(const KeyNode& node)
{
    if (!node.parent())
        return RegistryTreeModel::tr(
            "HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE and HKEY_USERS "
            "are one and the same key");
    if (node.isCreated())
        return RegistryTreeModel::tr(
            "Created and still empty: it can be opened, but is not listed yet");
    const QString path = node.path();
    return isRedirected(path) ? redirectedKeyText(path) : RegistryPath::shown(path);
}

QVariant font(const KeyNode& node)
{
    if (!node.isCreated())
        return {};
    QFont italic;
    italic.setItalic(true);
    return italic;
}

} // namespace

RegistryTreeModel::RegistryTreeModel(QObject* parent)
    : QAbstractItemModel(parent),
      m_names(std::make_shared<RegistryIndex>()),
      m_root(std::make_unique<KeyNode>())
{
}

RegistryTreeModel::~RegistryTreeModel() = default;

KeyNode& RegistryTreeModel::node(const QModelIndex& index) const
{
    return *static_cast<KeyNode*>(index.internalPointer());
}

QModelIndex RegistryTreeModel::indexOf(KeyNode& node) const
{
    return createIndex(node.row(), 0, &node);
}

QModelIndex RegistryTreeModel::rootItem() const
{
    return indexOf(*m_root);
}

QModelIndex RegistryTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    return parent.isValid() ? indexOf(node(parent).child(row)) : rootItem();
}

QModelIndex RegistryTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || !node(child).parent())
        return {};
    return indexOf(*node(child).parent());
}

int RegistryTreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    return parent.isValid() ? node(parent).count() : 1;
}

int RegistryTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

bool RegistryTreeModel::hasChildren(const QModelIndex& parent) const
{
    return !parent.isValid() || node(parent).hasKeys(*m_names);
}

bool RegistryTreeModel::canFetchMore(const QModelIndex& parent) const
{
    if (!parent.isValid() || m_isInserting)
        return false;
    const KeyNode& item = node(parent);
    return !item.isListed() || item.count() < item.names().size();
}

void RegistryTreeModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    KeyNode& item = node(parent);
    list(item);
    show(item, item.count() + batch);
}

QVariant RegistryTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const KeyNode& item = node(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: return item.parent() ? item.name() : tr("All root keys");
    case Qt::DecorationRole: return icon(item);
    case Qt::ToolTipRole: return toolTip(item);
    case Qt::FontRole: return font(item);
    default: return {};
    }
}

QString RegistryTreeModel::path(const QModelIndex& index) const
{
    return index.isValid() ? node(index).path() : QString();
}

int RegistryTreeModel::subKeyCount(const QModelIndex& index) const
{
    if (!index.isValid())
        return 0;
    list(node(index));
    return node(index).names().size();
}

QModelIndex RegistryTreeModel::find(const QString& path)
{
    KeyNode* nearest = m_root.get();
    const QStringList levels = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& level : levels) {
        KeyNode* next = child(*nearest, level);
        if (!next)
            break;
        nearest = next;
    }
    return indexOf(*nearest);
}

KeyNode* RegistryTreeModel::child(KeyNode& parent, const QString& name)
{
    list(parent);
    const auto found = std::lower_bound(parent.names().cbegin(), parent.names().cend(), name);
    if (found == parent.names().cend() || *found != name)
        return nullptr;
    const int row = static_cast<int>(found - parent.names().cbegin());
    show(parent, row + 1);
    return &parent.child(row);
}

void RegistryTreeModel::list(KeyNode& node) const
{
    if (!node.isListed())
        node.setListing(listRegistryKey(*m_names, node.path()));
}

void RegistryTreeModel::show(KeyNode& node, int count)
{
    const int first = node.count();
    const int last = qMin(count, node.names().size()) - 1;
    if (last >= first)
        insert(node, first, last, node.names());
}

// A view may ask for more rows while it is told of new ones: it gets them afterwards.
void RegistryTreeModel::insert(KeyNode& node, int first, int last, const QStringList& names)
{
    m_isInserting = true;
    beginInsertRows(indexOf(node), first, last);
    node.insert(first, last, names);
    endInsertRows();
    m_isInserting = false;
}

void RegistryTreeModel::refresh()
{
    m_names = RegistryIndex::read();
    update(*m_root);
    // The views paint the marks of created keys anew, and the arrows of keys that have gained or
    // lost their sub-keys.
    emit layoutAboutToBeChanged();
    emit layoutChanged();
}

void RegistryTreeModel::update(KeyNode& node)
{
    if (!node.isListed())
        return node.forgetKeys();
    const RegistryListing listing = listRegistryKey(*m_names, node.path());
    const QStringList names = listing.allKeys();
    removeVanished(node, names);
    insertNew(node, names);
    node.setListing(listing);
    for (int row = 0; row < node.count(); ++row)
        update(node.child(row));
}

// Children next to each other are removed in one go, because the views are told of each removal.
void RegistryTreeModel::removeVanished(KeyNode& node, const QStringList& names)
{
    const auto isThere = [&](int row) { return contains(names, node.child(row).name()); };
    for (int last = node.count() - 1; last >= 0; --last) {
        int first = last + 1;
        while (first > 0 && !isThere(first - 1))
            --first;
        if (first > last)
            continue;
        beginRemoveRows(indexOf(node), first, last);
        node.remove(first, last);
        endRemoveRows();
        last = first;
    }
}

// To be called when the name of every child is among the names.
void RegistryTreeModel::insertNew(KeyNode& node, const QStringList& names)
{
    const int wanted = node.wantedCount(names);
    for (int row = 0; row < wanted; ++row) {
        const int first = row;
        while (row < wanted && !node.hasChild(first, names.at(row)))
            ++row;
        if (row > first)
            insert(node, first, row - 1, names);
    }
}
