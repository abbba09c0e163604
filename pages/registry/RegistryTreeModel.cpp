#include "pages/registry/RegistryTreeModel.h"

#include "inspection/registry/RedirectedName.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "window/GlyphIcon.h"

#include <QFont>

#include <algorithm>

namespace {

// A key with very many sub-keys shows them in batches as the view is scrolled.
constexpr int batch = 2000;

} // namespace

// `children` are always the first of `names`: those that the views have been told of.
struct RegistryTreeModel::Node
{
    enum class Below
    {
        Unknown,
        Nothing,
        Something
    };

    QString name;
    Node* parent = nullptr;
    int row = 0;
    bool listed = false;
    mutable Below below = Below::Unknown;
    QStringList names;
    QStringList created;
    std::vector<std::unique_ptr<Node>> children;

    QString path() const { return parent ? RegistryPath::join(parent->path(), name) : QString(); }
    int shown() const { return static_cast<int>(children.size()); }
    bool isCreated() const
    {
        return parent && std::binary_search(parent->created.cbegin(), parent->created.cend(), name);
    }
    Glyph glyph() const
    {
        if (!parent)
            return Glyph::Registry;
        return isRedirected(path()) ? Glyph::Warning : Glyph::Key;
    }
    void insert(int at, const QString& childName)
    {
        auto node = std::make_unique<Node>();
        node->name = childName;
        node->parent = this;
        children.insert(children.begin() + at, std::move(node));
    }
    void number()
    {
        for (int i = 0; i < shown(); ++i)
            children[static_cast<std::size_t>(i)]->row = i;
    }
};

RegistryTreeModel::RegistryTreeModel(QObject* parent)
    : QAbstractItemModel(parent),
      m_names(std::make_shared<RegistryIndex>()),
      m_root(std::make_unique<Node>())
{
}

RegistryTreeModel::~RegistryTreeModel() = default;

RegistryTreeModel::Node* RegistryTreeModel::node(const QModelIndex& index) const
{
    return static_cast<Node*>(index.internalPointer());
}

QModelIndex RegistryTreeModel::indexOf(Node* node) const
{
    return createIndex(node->row, 0, node);
}

QModelIndex RegistryTreeModel::rootItem() const
{
    return indexOf(m_root.get());
}

QModelIndex RegistryTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    if (!parent.isValid())
        return rootItem();
    return indexOf(node(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex RegistryTreeModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || !node(child)->parent)
        return {};
    return indexOf(node(child)->parent);
}

int RegistryTreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    return parent.isValid() ? node(parent)->shown() : 1;
}

int RegistryTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

bool RegistryTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return true;
    const Node& item = *node(parent);
    if (item.listed)
        return !item.names.isEmpty();
    if (item.below == Node::Below::Unknown)
        item.below =
            hasSubKeys(*m_names, item.path()) ? Node::Below::Something : Node::Below::Nothing;
    return item.below == Node::Below::Something;
}

bool RegistryTreeModel::canFetchMore(const QModelIndex& parent) const
{
    if (!parent.isValid() || m_inserting)
        return false;
    const Node& item = *node(parent);
    return !item.listed || item.shown() < item.names.size();
}

void RegistryTreeModel::fetchMore(const QModelIndex& parent)
{
    if (!canFetchMore(parent))
        return;
    Node& item = *node(parent);
    list(item);
    show(item, item.shown() + batch);
}

void RegistryTreeModel::list(Node& node) const
{
    if (node.listed)
        return;
    const RegistryListing listing = listRegistryKey(*m_names, node.path());
    node.names = listing.allKeys();
    node.created = listing.createdKeys;
    node.listed = true;
}

void RegistryTreeModel::show(Node& node, int count)
{
    const int first = node.shown();
    const int last = qMin(count, node.names.size()) - 1;
    if (last >= first)
        insert(node, first, last, node.names);
}

// Views may ask for more while they are told of these.
void RegistryTreeModel::insert(Node& node, int first, int last, const QStringList& names)
{
    m_inserting = true;
    beginInsertRows(indexOf(&node), first, last);
    for (int i = first; i <= last; ++i)
        node.insert(i, names.at(i));
    node.number();
    endInsertRows();
    m_inserting = false;
}

QVariant RegistryTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Node& item = *node(index);
    const bool created = item.isCreated();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: return item.parent ? item.name : tr("All root keys");
    case Qt::DecorationRole: return glyphIcon(item.glyph());
    case Qt::ToolTipRole: return toolTip(item);
    case Qt::FontRole: {
        QFont font;
        font.setItalic(true);
        return created ? font : QVariant();
    }
    default: return {};
    }
}

QString RegistryTreeModel::toolTip(const Node& item)
{
    if (!item.parent)
        return tr("HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE and HKEY_USERS are one "
                  "and the same key");
    if (item.isCreated())
        return tr("Created and still empty: it can be opened, but is not listed yet");
    const QString path = item.path();
    return isRedirected(path) ? redirectedKeyText(path) : RegistryPath::shown(path);
}

QString RegistryTreeModel::path(const QModelIndex& index) const
{
    return index.isValid() ? node(index)->path() : QString();
}

int RegistryTreeModel::subKeyCount(const QModelIndex& index) const
{
    if (!index.isValid())
        return 0;
    list(*node(index));
    return node(index)->names.size();
}

RegistryTreeModel::Node* RegistryTreeModel::child(Node& parent, const QString& name)
{
    list(parent);
    const auto found = std::lower_bound(parent.names.cbegin(), parent.names.cend(), name);
    if (found == parent.names.cend() || *found != name)
        return nullptr;
    const int row = static_cast<int>(found - parent.names.cbegin());
    show(parent, row + 1);
    return parent.children[static_cast<std::size_t>(row)].get();
}

QModelIndex RegistryTreeModel::find(const QString& path)
{
    Node* current = m_root.get();
    const QStringList levels = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString& level : levels) {
        Node* next = child(*current, level);
        if (!next)
            break;
        current = next;
    }
    return indexOf(current);
}

void RegistryTreeModel::refresh()
{
    m_names = RegistryIndex::read();
    update(*m_root);
    // Marks of created keys, and the arrows of keys that have gained or lost their sub-keys.
    emit layoutAboutToBeChanged();
    emit layoutChanged();
}

void RegistryTreeModel::update(Node& node)
{
    node.below = Node::Below::Unknown;
    if (!node.listed)
        return;
    const RegistryListing listing = listRegistryKey(*m_names, node.path());
    const QStringList names = listing.allKeys();
    removeVanished(node, names);
    insertNew(node, names);
    node.names = names;
    node.created = listing.createdKeys;
    for (const auto& child : node.children)
        update(*child);
}

// Neighbours go together.
void RegistryTreeModel::removeVanished(Node& node, const QStringList& names)
{
    const auto vanished = [&node, &names](int row) {
        const QString& name = node.children[static_cast<std::size_t>(row)]->name;
        return !std::binary_search(names.cbegin(), names.cend(), name);
    };
    for (int last = node.shown() - 1; last >= 0; --last) {
        int first = last + 1;
        while (first > 0 && vanished(first - 1))
            --first;
        if (first > last)
            continue;
        beginRemoveRows(indexOf(&node), first, last);
        node.children.erase(node.children.begin() + first, node.children.begin() + last + 1);
        node.number();
        endRemoveRows();
        last = first;
    }
}

// A node that has shown all of its children goes on showing all; otherwise what lies behind the
// last one shown waits for its batch.
void RegistryTreeModel::insertNew(Node& node, const QStringList& names)
{
    const bool all = node.shown() == 0 || node.shown() >= node.names.size();
    const QString last = node.shown() > 0 ? node.children.back()->name : QString();
    int row = 0;
    while (row < names.size()) {
        int end = row;
        while (end < names.size() && (all || names.at(end) < last) &&
               (row >= node.shown() ||
                names.at(end) < node.children[static_cast<std::size_t>(row)]->name))
            ++end;
        if (end > row) {
            insert(node, row, end - 1, names);
        } else if (row >= node.shown()) {
            return;
        }
        row = qMax(end, row + 1);
    }
}
