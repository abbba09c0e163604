#pragma once

#include "inspection/host/ElfVersions.h"

#include <QMultiHash>

/// A symbol that a library wants of others.
struct ElfImport
{
    QByteArray name;
    ElfSymbolVersion version;
};

/// The symbols by which libraries are bound to each other.
struct ElfSymbols
{
    /// What has to be found when the library is loaded; weak ones, which need not be, are left out.
    QVector<ElfImport> imports;
    /// What others find here.
    QMultiHash<QByteArray, ElfSymbolVersion> exports;
    /// True where the tables lead out of the file, or the names out of their table.
    bool isDamaged = false;
};

/// All of them, of the dynamic table.
ElfSymbols readElfSymbols(const ElfFile& file, ElfDynamic& dynamic, const ElfVersions& versions);
