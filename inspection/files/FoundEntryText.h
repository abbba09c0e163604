#pragma once

#include "inspection/files/FileSearch.h"

#include <QCoreApplication>

/// How the fields of a find record read. What the service has left as it was reads as a dash.
class FoundEntryText
{
    Q_DECLARE_TR_FUNCTIONS(FoundEntryText)

public:
    using Time = FILETIME FoundDetails::*;

    /// The number of bytes, as the locale writes it.
    static QString size(const FoundEntry& entry);
    /// The local time, such as "2026-03-07 09:05:01".
    static QString time(const FoundEntry& entry, Time time);

    /// The fields as they stand in the record, by their Windows names; where the service has not
    /// written them, what that means.
    static QString rawSize(const FoundEntry& entry);
    static QString rawTime(const FoundEntry& entry, Time time);

private:
    static QString unwritten();
};
