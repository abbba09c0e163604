#include "inspection/registry/KeyNode.h"

#include "inspection/registry/RegistryPath.h"

#include <algorithm>

QString KeyNode::path() const
{
    return m_parent ? RegistryPath::join(m_parent->path(), m_name) : QString();
}

bool KeyNode::isCreated() const
{
    return m_parent &&
           std::binary_search(m_parent->m_created.cbegin(), m_parent->m_created.cend(), m_name);
}

void KeyNode::setListing(const RegistryListing& listing)
{
    m_names = listing.allKeys();
    m_created = listing.createdKeys;
    m_hasKeys = !m_names.isEmpty();
    m_isListed = true;
}

bool KeyNode::hasKeys(const RegistryIndex& index) const
{
    if (!m_hasKeys)
        m_hasKeys = hasSubKeys(index, path());
    return *m_hasKeys;
}

int KeyNode::wantedCount(const QStringList& names) const
{
    if (count() == 0 || count() >= m_names.size())
        return names.size();
    const QString& last = m_children.back()->name();
    return static_cast<int>(std::upper_bound(names.cbegin(), names.cend(), last) - names.cbegin());
}

bool KeyNode::hasChild(int row, const QString& name) const
{
    return row < count() && child(row).name() == name;
}

void KeyNode::insert(int first, int last, const QStringList& names)
{
    std::vector<std::unique_ptr<KeyNode>> added;
    for (int row = first; row <= last; ++row)
        added.push_back(std::make_unique<KeyNode>(this, names.at(row)));
    m_children.insert(m_children.begin() + first, std::make_move_iterator(added.begin()),
                      std::make_move_iterator(added.end()));
    numberFrom(first);
}

void KeyNode::remove(int first, int last)
{
    m_children.erase(m_children.begin() + first, m_children.begin() + last + 1);
    numberFrom(first);
}

void KeyNode::numberFrom(int first)
{
    for (int row = first; row < count(); ++row)
        child(row).m_row = row;
}
