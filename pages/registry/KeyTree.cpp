#include "pages/registry/KeyTree.h"

#include "window/ViewFocus.h"

#include <QHeaderView>
#include <QScrollBar>

namespace {

constexpr int leastName = 16; // characters of a name that can be seen at any depth

} // namespace

KeyTree::KeyTree(QWidget* parent) : QTreeView(parent), m_keys(new RegistryTreeModel(this))
{
    setModel(m_keys);
    setObjectName(QStringLiteral("keys"));
    setAccessibleName(tr("Keys"));
    setHeaderHidden(true);
    setUniformRowHeights(true);
    new ViewFocus(this);
    setTextElideMode(Qt::ElideMiddle);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    setCurrentIndex(m_keys->rootItem());
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &KeyTree::chosen);
}

void KeyTree::choose(const QString& path)
{
    const QModelIndex key = m_keys->find(path);
    setCurrentIndex(key);
    scrollTo(key);
}

void KeyTree::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    makeRoom(index);
    QTreeView::scrollTo(index, hint);
    const QRect item = visualRect(index);
    const int name = fontMetrics().averageCharWidth() * leastName;
    if (item.isValid() && item.left() + name > viewport()->width())
        horizontalScrollBar()->setValue(horizontalOffset() + item.left() - indentation());
}

// The column is as wide as the view, and wider where the items are indented that far.
void KeyTree::makeRoom(const QModelIndex& index)
{
    int depth = 0;
    for (QModelIndex at = index; at.isValid(); at = at.parent())
        ++depth;
    const int name = fontMetrics().averageCharWidth() * (leastName + 4); // the icon, too
    header()->setMinimumSectionSize(
        qMax(header()->minimumSectionSize(), depth * indentation() + name));
}
