#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Collects names and puts them into the order of QDir: by their lower-case text in UTF-16 code
/// units. Names that differ only in case compare equal; they come out as QDir's own sort leaves
/// them, which depends on the order in which they went in.
class NameOrder
{
public:
    void add(QString name);

    /// The names in order; leaves the collection empty.
    QStringList take();

private:
    struct Entry
    {
        std::uint64_t key; // the first code units behind what all names have in common
        std::size_t start; // of the lower-case text in m_folded
        int length;
        std::size_t index; // in m_names
    };

    void fold(const QString& name);
    QStringView folded(const Entry& entry) const;
    int commonLength() const;
    std::uint64_t keyOf(const Entry& entry, int skipped) const;
    bool isLess(const Entry& a, const Entry& b) const;

    std::vector<QString> m_names;
    std::u16string m_folded; // one behind the other
    std::vector<Entry> m_entries;
    int m_unitBits = 8; // that a code unit takes in a key: fewer as long as all names are ASCII
};
