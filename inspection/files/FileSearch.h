#pragma once

#include "platform/WindowsTypes.h"

#include <QString>

#include <optional>

/// The size and the times of a find record.
struct FoundDetails
{
    quint64 size = 0; ///< bytes
    FILETIME creation{};
    FILETIME lastAccess{};
    FILETIME lastWrite{};
};

bool operator==(const FoundDetails& a, const FoundDetails& b);

/// What one call wrote to the find record.
struct FoundEntry
{
    QString name;
    DWORD attributes = 0;
    /// Nothing where the call left size and times as they were.
    std::optional<FoundDetails> details;
};

bool operator==(const FoundEntry& a, const FoundEntry& b);

/// One directory search through the services. Closes its handle when it is destroyed.
class FileSearch
{
public:
    FileSearch() = default;
    ~FileSearch();

    FileSearch(const FileSearch&) = delete;
    FileSearch& operator=(const FileSearch&) = delete;

    /// Begins anew; nothing where the service finds nothing. The service lists the whole directory
    /// in this one call.
    std::optional<FoundEntry> first(const QString& pattern);
    /// The entry after the last one; nothing at the end.
    std::optional<FoundEntry> next();

private:
    void close();
    void markUnwritten();
    FoundEntry entry() const;

    HANDLE m_handle = INVALID_HANDLE_VALUE;
    WIN32_FIND_DATAW m_record{};
};
