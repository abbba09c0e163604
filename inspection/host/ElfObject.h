#pragma once

#include "inspection/host/ElfSymbols.h"

#include <memory>

/// What the dynamic loader sees of a library's file, read without running it.
struct ElfObject
{
    QString path; ///< absolute; as it was found, links are not followed
    ElfFault fault = ElfFault::None;
    ElfIdentity identity;

    // What follows is read of 64-bit little-endian files without a fault only.
    bool isRead = false; ///< true where all of it was read
    QByteArray soname;
    QByteArrayList needed;
    std::optional<QByteArray> rpath;   ///< as it stands in the file
    std::optional<QByteArray> runpath; ///< as it stands in the file
    bool isProgram = false;            ///< a program, which nothing can load
    bool refusesLoading = false;       ///< marked as one that only a program's start may load
    bool ignoresDefaultFolders = false;
    bool hasTextRelocations = false;
    bool wantsExecutableStack = false;
    bool hasVersions = false; ///< false: a symbol of this library suits each wanted version
    QVector<ElfVersionNeed> versionNeeds;
    QByteArrayList versions; ///< that the library offers
    ElfSymbols symbols;

    /// The last part of the path.
    QString fileName() const;
};

/// Never fails: what is wrong with the file stands in `fault`.
std::shared_ptr<const ElfObject> readElfObject(const QString& path);
