#pragma once

#include "trace/reading/AskedFor.h"
#include "trace/reading/HandleTable.h"

#include <QStringList>

#include <optional>

namespace trace {

struct Operation;

/// What a call is about, where that is something that can be looked at.
struct CallSubject
{
    enum class Kind
    {
        Key,
        Profile,
        Files
    };

    Kind kind;
    QString place;     ///< the path of a key, beginning with its root; of a profile; of files
    QStringList names; ///< of a value of the key; of a section and an entry of the profile

    /// Nothing where the call is about none of those, or about a key that is not known.
    /// `operation` is null for one that is not known.
    static std::optional<CallSubject> of(const Call& call, const Operation* operation,
                                         const AskedFor::PathOf& pathOf);
    /// The same for what calls asked for.
    static std::optional<CallSubject> of(AskedFor::Kind kind, const QString& place,
                                         const QString& name);
    /// The same for what a handle was made for.
    static std::optional<CallSubject> of(const HandleTable::Entry& handle);
};

} // namespace trace
