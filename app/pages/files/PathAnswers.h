#pragma once

#include "platform/WindowsTypes.h"

#include <QString>

/// What the directory service answers about single paths.
namespace PathAnswers {

struct Existence
{
    bool exists;
    /// As it is on disk; the path itself where there is nothing.
    QString realPath;
};

Existence existence(const QString& path);
DWORD attributes(const QString& path);
QString extension(const QString& path);
bool isUrl(const QString& text);
bool isRelative(const QString& path);
QString relativePath(const QString& from, const QString& to);
QString temporaryFolder();

} // namespace PathAnswers
