#pragma once

#include "inspection/host/HostReport.h"

/// A version that a library wants of another one which has not got it.
struct MissingVersion
{
    ElfVersionNeed need;
    QString wantedBy; ///< the path of the library that wants it
    QString here;     ///< the newest one here of the same name, such as "GLIBC_2.36"; may be empty
    bool isWeak() const { return need.isWeak; }
};

/// Of the checked library and of those that it brings in, by the dynamic loader's rule.
QVector<MissingVersion> missingVersions(const LoadScope& scope);

/// What the checked library wants of glibc, libstdc++ and Qt, as far as it names versions of them.
QVector<HostVersion> productVersions(const ElfObject& library, const LoadScope& scope);
