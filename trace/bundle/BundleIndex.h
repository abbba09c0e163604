#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>
#include <vector>

namespace trace {

/// What a bundle has taken along, and where it was: `bundle.json`.
struct BundleIndex
{
    Q_DECLARE_TR_FUNCTIONS(BundleIndex)

public:
    /// A file or folder, by the absolute path that it had, and its copy in the bundle.
    struct File
    {
        QString path;
        QString file; ///< relative to the bundle's folder; empty: there was nothing at that path

        bool isAbsent() const { return file.isEmpty(); }
    };

    /// What was asked for and was not taken along.
    struct Left
    {
        QString path;
        qint64 size;    ///< bytes
        QString reason; ///< a word: see `reasonText`
    };

    std::optional<File> store;     ///< at the program's start; nothing where it was not known
    std::vector<File> profiles;    ///< each as it was before the first call that named it
    std::vector<File> directories; ///< copies are listings, see `DirectoryListing`
    std::vector<Left> left;
    bool isHidden = false; ///< values are replaced by others of the same length

    /// The profile or folder with this path; null without one.
    const File* profile(const QString& path) const;
    const File* directory(const QString& path) const;

    /// What `bundle.json` says; nothing where it is wrong, which `fault` tells in words. Names of
    /// copies lead into the bundle's folder.
    static std::optional<BundleIndex> read(const QByteArray& json, QString& fault);
    QByteArray toJson() const;

    /// A reason for people.
    static QString reasonText(const QString& reason);
};

} // namespace trace
