#pragma once

#include <QString>
#include <QVariant>

#include <optional>
#include <vector>

/// One entry of the settings store before and after a change, as the file has it; nothing where
/// there is no such entry.
struct EntryChange
{
    QString path;
    std::optional<QVariant> before;
    std::optional<QVariant> after;
};

/// A change of the store. Entries of a group stand behind the entry of its name.
using StoreChange = std::vector<EntryChange>;

/// The line that the audit trail has for the change of an entry.
QString auditLine(const EntryChange& change);
