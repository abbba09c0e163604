#pragma once

#include <QByteArray>
#include <QStringList>

/// Where the dynamic loader looks for libraries, apart from what the libraries say themselves.
struct SearchPlaces
{
    QByteArray libraryPath; ///< as the variable LD_LIBRARY_PATH has it
    QString cacheFile;
    QStringList defaultFolders;

    /// Of this system and this process's environment.
    static SearchPlaces ofThisSystem();
};

/// The folders of a path as libraries and the environment give it, in order. `separators` divide
/// them; an empty one is the working directory. `origin` is the folder of the library that says so.
QStringList searchFolders(const QByteArray& path, const char* separators, const QString& origin);
