#pragma once

#include <QSettings>

/// Enters a group of a store for as long as it lives, and leaves it again. Names given to the store
/// meanwhile begin below the group.
class GroupScope
{
public:
    /// `store` outlives the scope; the empty group is the one that the store is in.
    GroupScope(QSettings& store, const QString& group) : m_store(store)
    {
        m_store.beginGroup(group);
    }
    ~GroupScope() { m_store.endGroup(); }

    GroupScope(const GroupScope&) = delete;
    GroupScope& operator=(const GroupScope&) = delete;

private:
    QSettings& m_store;
};
