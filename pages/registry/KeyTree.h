#pragma once

#include "pages/registry/RegistryTreeModel.h"

#include <QTreeView>

/// The tree of the keys.
class KeyTree : public QTreeView
{
    Q_OBJECT

public:
    explicit KeyTree(QWidget* parent = nullptr);

    /// The keys that it shows.
    RegistryTreeModel& keys() const { return *m_keys; }

    /// The path of the key that is selected.
    QString path() const { return m_keys->path(currentIndex()); }
    /// Selects a key, or the nearest one above it.
    void choose(const QString& path);

    /// Shows the name of an item, too, where it stands far to the right.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

signals:
    /// Another key is selected.
    void chosen();

private:
    void makeRoom(const QModelIndex& index);

    RegistryTreeModel* m_keys;
};
