#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Lists a directory exactly as `QDir::entryList` does for files and folders with `QDir::NoSort`:
/// links count as what they point to; broken links, pipes and the like, "." and "..", and names
/// that are not text in the locale's encoding are left out. Several times faster than QDir, which
/// keeps a QFileInfo for every entry.
class DirectoryListing
{
public:
    enum Hidden
    {
        WithHidden,
        WithoutHidden
    };

    /// The directory may be one of Qt's resources, or start with one of Qt's search paths.
    DirectoryListing(const QString& directory, Hidden hidden);

    /// The names of the entries that match `filter`, in the order of QDir: by name ignoring case.
    /// The filter may hold the wildcards of `QDir::setNameFilters` and ignores case; one that is no
    /// valid pattern matches nothing.
    QStringList names(const QString& filter) const;

    /// Whether the entry `name` is, at this moment, a folder or a link to one.
    bool isFolder(const QString& name) const;

    /// The absolute path of the entry `name`.
    QString absolutePath(const QString& name) const;

private:
    QString m_directory;          // with a trailing separator
    QByteArray m_nativeDirectory; // empty: not of the file system
    Hidden m_hidden;
};
