#pragma once

#include "inspection/registry/RegistryIndex.h"

#include <QAbstractItemModel>

#include <memory>

class KeyNode;

/// The keys, read level by level as they are opened. One top item stands for the root that all
/// predefined root keys share.
class RegistryTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit RegistryTreeModel(QObject* parent = nullptr);
    ~RegistryTreeModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// The names that the items come from.
    const RegistryIndex& names() const { return *m_names; }
    /// The same, for whoever looks at it for longer: a refresh replaces it.
    const std::shared_ptr<const RegistryIndex>& sharedNames() const { return m_names; }

    QModelIndex rootItem() const;

    /// The key's path in the store; empty for the root.
    QString path(const QModelIndex& index) const;
    /// How many keys are right below one.
    int subKeyCount(const QModelIndex& index) const;
    /// The item of a key, read in as needed; of the nearest key above it where there is none.
    QModelIndex find(const QString& path);

    /// Lists the store, which the model does not do before; brings everything that has been read so
    /// far up to date; items that stay keep their place.
    void refresh();

private:
    KeyNode& node(const QModelIndex& index) const;
    QModelIndex indexOf(KeyNode& node) const;
    void list(KeyNode& node) const;
    void show(KeyNode& node, int count);
    void insert(KeyNode& node, int first, int last, const QStringList& names);
    KeyNode* child(KeyNode& parent, const QString& name);
    void update(KeyNode& node);
    void removeVanished(KeyNode& node, const QStringList& names);
    void insertNew(KeyNode& node, const QStringList& names);

    std::shared_ptr<const RegistryIndex> m_names;
    std::unique_ptr<KeyNode> m_root;
    bool m_isInserting = false;
};
