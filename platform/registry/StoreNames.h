#pragma once

#include <QStringList>

#include <optional>

/// The names of the keys, or of the values, in a group of the store, in the store's order.
class StoreNames
{
public:
    /// What has to be known of the longest name.
    struct Longest
    {
        QString name;            ///< the first of the longest; empty when there are none
        unsigned int length = 0; ///< in characters, not UTF-16 units
    };

    explicit StoreNames(const QStringList& names) : m_names(names) {}

    unsigned int count() const { return static_cast<unsigned int>(m_names.size()); }
    /// Null at or past the end.
    const QString* at(unsigned int index) const;
    /// Measures all names when it is asked for first.
    const Longest& longest() const;

private:
    QStringList m_names;
    mutable std::optional<Longest> m_longest;
};
