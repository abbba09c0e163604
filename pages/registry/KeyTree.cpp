#include "pages/registry/KeyTree.h"

#include "window/ViewFocus.h"

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
