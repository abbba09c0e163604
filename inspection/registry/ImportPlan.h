#pragma once

#include "inspection/registry/ImportCheck.h"
#include "inspection/registry/ImportOverlaps.h"
#include "inspection/registry/RegistryKey.h"

#include <QHash>

#include <memory>
#include <vector>

/// What an import will do, statement by statement, before anything is written.
class ImportPlan
{
    Q_DECLARE_TR_FUNCTIONS(ImportPlan)

public:
    using Outcome = ImportCheck::Outcome;

    struct Statement
    {
        RegFileEntry entry;
        Outcome outcome = Outcome::Done;
        QString remark; ///< what is altered, or why it is refused, in words
        /// What the store holds in the place of a value that is set or deleted: type and data in
        /// words. Null where it holds nothing there.
        QString before;
        /// The store holds already what the statement asks for: the key, or the same value.
        bool isThere = false;

        /// True where it puts another value in the place of one that is there.
        bool isOverwriting() const
        {
            return entry.action == RegFileEntry::Action::SetValue && !before.isNull() && !isThere;
        }
        /// True where it deletes a value that is there.
        bool isDeleting() const
        {
            return entry.action == RegFileEntry::Action::DeleteValue && !before.isNull();
        }
    };

    /// Reads a few of the names in the store that the statement will be compared with; false when
    /// they have all been read, and adding it is quick.
    bool readSome(const RegFileEntry& entry);
    /// Checks a statement against the store as it is now and against the statements before it, and
    /// adds it with what will become of it.
    void add(const RegFileEntry& entry);

    const std::vector<Statement>& statements() const { return m_statements; }
    int count(Outcome outcome) const;
    /// How many statements put another value in the place of one that is there.
    int overwritten() const;

private:
    void overlap(Statement& statement);
    void compare(Statement& statement);
    const RegistryKey& key(const QString& path);

    std::vector<Statement> m_statements;
    QHash<int, std::size_t> m_byLine; ///< places of the statements that are not refused
    ImportOverlaps m_overlaps;
    std::unique_ptr<RegistryKey> m_key; ///< the one that was asked for last
    QString m_keyPath;
};
