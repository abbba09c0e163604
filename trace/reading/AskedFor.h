#pragma once

#include "trace/reading/Call.h"

#include <functional>
#include <optional>

namespace trace {

class HandleTable;

/// What a call asked the services for: a key, a value, an entry of a profile or a file.
struct AskedFor
{
    enum class Kind
    {
        Key,
        Value,
        Entry, ///< of a profile
        File
    };

    Kind kind;
    QString place;         ///< a key, or a file
    QString name;          ///< of a value; of an entry the section in brackets, and the key
    bool isAbsent = false; ///< the answer was that it is not there

    /// Whether the operation asks for something.
    static bool isConcerned(const QString& operation);
    /// Nothing for a call that asks for nothing, that never returned, or that names no file.
    /// `handles` are those before the call.
    static std::optional<AskedFor> of(const Call& call, bool isFailure, const HandleTable& handles);

    /// What a handle of a key stands for, as `HandleTable::path` tells it.
    using PathOf = std::function<QString(const QString& handle)>;
    static std::optional<AskedFor> of(const Call& call, bool isFailure, const PathOf& pathOf);
};

} // namespace trace
