#pragma once

#include "inspection/registry/RegistryIndex.h"
#include "inspection/registry/RegistryKey.h"

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <vector>

/// A value of a key: its name has been listed, the rest is read through the service when it is
/// asked for first. Copies share the key, which stays open while one of them lives.
class ListedValue
{
    Q_DECLARE_TR_FUNCTIONS(ListedValue)

public:
    /// Where a host library finds the value.
    enum class Place
    {
        InKey,       ///< in its key
        UnderRoot,   ///< asked for directly under a root: kept at name/name
        ListedAtRoot ///< an entry of the root itself: enumeration lists it, asking does not find it
    };

    /// The values of a key as they are now. `names` is used for the root alone, which has the whole
    /// store below it.
    static std::vector<ListedValue> ofKey(const QString& path, const RegistryIndex& names);

    const QString& name() const { return m_name; }
    Place place() const { return m_place; }
    /// The path of the entry that keeps the value.
    QString entryPath() const;
    /// The key in which deleting the value deletes nothing else that the key holds.
    QString keyToDeleteFrom() const;
    /// False when the value has gone meanwhile.
    bool isThere() const;
    /// Which other value or key a host library gets instead, and a change would be made in, in
    /// words; else empty.
    QString redirection() const;

    bool isReadable() const { return contents().reading.readable; }
    /// What a host library reads.
    const RegistryReading& reading() const { return contents().reading; }
    /// The text in the store, which no host library sees.
    const QString& raw() const { return contents().raw; }
    /// Why the value is unreadable, or what is odd about it, in words; else empty.
    const QString& remark() const { return contents().remark; }

    /// Type and data in words, on one line each.
    QString typeText() const;
    QString dataText() const;
    /// The data in words as a table is copied: numbers as they are shown, anything else whole.
    QString copiedText() const;
    /// The data as it is typed in; why there is none where the value is unreadable.
    QString wholeData() const;

    /// Has the value read anew when it is asked for next.
    void forget() { m_contents.reset(); }

private:
    struct Key
    {
        explicit Key(const QString& keyPath) : path(keyPath), key(keyPath) {}

        QString path;
        RegistryKey key;
    };

    struct Contents
    {
        RegistryReading reading;
        QString raw;
        QString remark;
    };

    ListedValue(std::shared_ptr<const Key> key, const QString& name, Place place);

    static std::vector<ListedValue> ofRoot(const RegistryIndex& names);
    const Contents& contents() const;
    Contents read() const;
    QString placeRemark() const;

    std::shared_ptr<const Key> m_key;
    QString m_name;
    Place m_place;
    mutable std::optional<Contents> m_contents;
};
