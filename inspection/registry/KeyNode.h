#pragma once

#include "inspection/registry/RegistryListing.h"

#include <memory>
#include <optional>
#include <vector>

/// A key in the tree of all keys, with the keys below it as far as they have been read. The node of
/// the root has no parent.
class KeyNode
{
public:
    KeyNode() = default;
    KeyNode(KeyNode* parent, const QString& name) : m_parent(parent), m_name(name) {}

    KeyNode* parent() const { return m_parent; }
    const QString& name() const { return m_name; }
    /// The place among its parent's children.
    int row() const { return m_row; }
    /// The key's path in the store; empty for the root.
    QString path() const;
    /// True for a key that has been created and is still empty.
    bool isCreated() const;

    /// True when the names of the keys right below this one have been read.
    bool isListed() const { return m_isListed; }
    /// Those names, sorted.
    const QStringList& names() const { return m_names; }
    /// Takes the names over; the children stay as they are.
    void setListing(const RegistryListing& listing);
    /// Whether there are keys below, found out once until `setListing` or `forgetKeys`.
    bool hasKeys(const RegistryIndex& index) const;
    void forgetKeys() { m_hasKeys.reset(); }

    /// How many children there are: those of the first names, which are in view.
    int count() const { return static_cast<int>(m_children.size()); }
    KeyNode& child(int row) const { return *m_children[static_cast<std::size_t>(row)]; }
    /// True when the child of this row is there and has this name.
    bool hasChild(int row, const QString& name) const;
    /// How many of the first of these names are to have children. Where all names have had some so
    /// far, all have; otherwise those behind the last child wait until they come into view.
    int wantedCount(const QStringList& names) const;
    /// Makes children for the names in these places.
    void insert(int first, int last, const QStringList& names);
    void remove(int first, int last);

private:
    void numberFrom(int first);

    KeyNode* m_parent = nullptr;
    QString m_name;
    int m_row = 0;
    bool m_isListed = false;
    QStringList m_names;
    QStringList m_created; ///< those of the names whose keys have been created and are empty
    mutable std::optional<bool> m_hasKeys;
    std::vector<std::unique_ptr<KeyNode>> m_children;
};
