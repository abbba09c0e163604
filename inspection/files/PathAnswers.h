#pragma once

#include "platform/WindowsTypes.h"

#include <QString>

class IPlatformDirectoryManager;

/// What the directory service answers about single paths.
class PathAnswers
{
public:
    struct Existence
    {
        bool exists;
        /// As it is on disk; the path itself where there is nothing.
        QString realPath;
    };

    /// The service outlives the answers.
    explicit PathAnswers(IPlatformDirectoryManager& service) : m_service(service) {}

    /// May list the whole directory.
    Existence existence(const QString& path) const;
    DWORD attributes(const QString& path) const;
    QString extension(const QString& path) const;
    bool isUrl(const QString& text) const;
    QString relativePath(const QString& from, const QString& to) const;
    QString temporaryFolder() const;
    /// What `AddBackslash` makes of a path.
    QString withSeparator(const QString& path) const;

private:
    IPlatformDirectoryManager& m_service;
};
