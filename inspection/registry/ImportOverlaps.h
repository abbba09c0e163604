#pragma once

#include "inspection/registry/RegistryIndexReader.h"
#include "regfile/RegFileEntry.h"

#include <QCoreApplication>
#include <QHash>
#include <QMap>
#include <QSet>

#include <memory>
#include <optional>

/// What the statements of a registry file have to do with each other, and with names in the store
/// that differ in case only: all root keys are one here, and "Key" and "key" are two.
class ImportOverlaps
{
    Q_DECLARE_TR_FUNCTIONS(ImportOverlaps)

public:
    /// Quick: the store is read when the first statement comes.
    ImportOverlaps();

    /// Reads a few names that the store has where this statement leads to: a key may have very
    /// many. False when they have all been read.
    bool readSome(const RegFileEntry& entry);

    /// Takes the next statement of the file, which is well-formed; what is to be said of it, in
    /// sentences. Reads the names that `readSome` has not been asked for.
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
    std::optional<QString> unreadKey(const RegFileEntry& entry) const;

    std::shared_ptr<const RegistryIndex> m_index;
    std::optional<RegistryIndexReader> m_reader; ///< of the key that is being read
    QString m_readKey;
    QSet<QString> m_read; ///< keys whose names have been read
    QHash<QString, Place> m_keys;
    QHash<QString, QMap<QString, int>> m_keysOfRoots; ///< the lines of the same, by root and path
    QHash<QString, Place> m_values;
    QHash<QString, Names> m_subKeys;
    QHash<QString, Names> m_valueNames;
    QSet<QString> m_deletedKeys;
    QSet<QString> m_deletedValues;
    int m_replacedLine = 0;
};
