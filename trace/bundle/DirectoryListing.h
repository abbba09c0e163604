#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace trace {

/// What a folder had in it when it was first asked about.
struct DirectoryListing
{
    struct Entry
    {
        QString name;
        bool isDirectory;
        qint64 size;     ///< bytes; 0 for a folder
        qint64 modified; ///< seconds since 1970
        bool isReadOnly; ///< for whoever was recorded
    };

    std::vector<Entry> entries;

    /// What the file of a listing says; nothing where it is wrong. Every name is that of an entry
    /// of one folder.
    static std::optional<DirectoryListing> read(const QByteArray& json);
    QByteArray toJson() const;
};

} // namespace trace
