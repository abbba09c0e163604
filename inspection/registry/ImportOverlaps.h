#pragma once

#include "inspection/registry/RegistryIndex.h"
#include "regfile/RegFileEntry.h"

#include <QCoreApplication>
#include <QHash>
#include <QMap>
#include <QSet>

#include <memory>

/// What the statements of a registry file have to do with each other, and with names in the store
/// that differ in case only: all root keys are one here, and "Key" and "key" are two.
class ImportOverlaps
{
    Q_DECLARE_TR_FUNCTIONS(ImportOverlaps)

public:
    /// Quick: the store is listed for the first statement.
    ImportOverlaps();

    /// Takes the next statement of the file, which is well-formed; what is to be said of it, in
    /// sentences.
    QStringList add(const RegFileEntry& entry);

    /// The line of an earlier statement under another root whose value this last one has replaced
    /// or deleted; 0 where there is none.
    int replacedLine() const { return m_replacedLine; }

    /// True when an earlier statement deletes the key or the entry of this path in the store.
    bool isDeletedBefore(const QString& path) const;

private:
    /// Where a key or a value stands in the file first.
    struct Place
    {
        QString root;
        int line = 0;
    };
    using Names = QMultiHash<QString, QString>; ///< by what they are without regard to case

    static Place placeOf(const RegFileEntry& entry);
    QString sameKey(const RegFileEntry& entry, const QString& path);
    QString deletedBelow(const RegFileEntry& entry, const QString& path) const;
    QString sameValue(const RegFileEntry& entry, const QString& entryPath);
    QStringList keyTwins(const QString& path);
    QStringList valueTwins(const QString& path, const QString& name);
    void list(const QString& path);

    std::shared_ptr<const RegistryIndex> m_index;
    QMap<QString, Place> m_keys;
    QHash<QString, Place> m_values;
    QHash<QString, Names> m_subKeys;    ///< of the keys that have been listed
    QHash<QString, Names> m_valueNames; ///< of the same keys
    QStringList m_deletedKeys;
    QSet<QString> m_deletedValues;
    int m_replacedLine = 0;
};
