#pragma once

#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

/// A key in the tree, with the keys below it as far as they have been read. The node of the root
/// has no parent.
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

    /// How many children there are: the first of `names`, those that the views have been told of.
    int count() const { return static_cast<int>(m_children.size()); }
    KeyNode& child(int row) const { return *m_children[static_cast<std::size_t>(row)]; }
    /// True when the child of this row is there and has this name.
    bool hasChild(int row, const QString& name) const;
    /// Makes the children that have these places among `all` names.
    void insert(int first, int last, const QStringList& all);
    void remove(int first, int last);

    bool isListed = false;                ///< `names` and `created` have been read
    QStringList names;                    ///< of all keys right below this one, sorted
    QStringList created;                  ///< those of them that have been created and are empty
    mutable std::optional<bool> isParent; ///< whether there are any, where that is known

private:
    void numberFrom(int first);

    KeyNode* m_parent = nullptr;
    QString m_name;
    int m_row = 0;
    std::vector<std::unique_ptr<KeyNode>> m_children;
};
