#pragma once

#include "platform/files/DirectoryListing.h"

#include <QStringList>

#include <cstdint>
#include <memory>
#include <unordered_map>

/// What a search handle points to.
struct FileSearch
{
    QStringList names;
    std::int32_t index; ///< of the name that was reported last
    DirectoryListing directory;
};

/// The searches that have been started and not ended yet, of all managers: a handle is good for any
/// of them. A handle of an ended search may come back as that of a later one.
class LiveSearches
{
public:
    /// Those of this process. They outlive all static objects, as callers may end their searches
    /// when they are destroyed themselves.
    static LiveSearches& ofProcess();

    /// Returns the handle.
    void* start(FileSearch search);
    /// The search of a handle, until it is ended; null for what is no handle.
    FileSearch* find(void* handle) const;
    /// False for what is no handle.
    bool end(void* handle);

private:
    std::unordered_map<void*, std::unique_ptr<FileSearch>> m_searches;
};
