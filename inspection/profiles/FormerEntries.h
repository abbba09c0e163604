#pragma once

#include "inspection/profiles/ProfileWriter.h"

#include <QString>

#include <utility>
#include <vector>

/// What goes with a section that is deleted: its first entries, as the family reads them, and how
/// many there are.
struct FormerEntries
{
    static constexpr int most = 1000;

    /// Of the file at that path. Asks the wide family for each value: to be called while a cache of
    /// the file is alive.
    static FormerEntries of(const QString& path, const ProfileChange& change);

    /// Key and value.
    std::vector<std::pair<QString, QString>> shown;
    int count = 0;
};
