#pragma once

#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReading.h"
#include "window/RecordsModel.h"

#include <QCoreApplication>

/// What the two tables of the page show: the lines of a profile with a margin that tells how each
/// family reads them, and the readings of both families side by side.
class ProfileColumns
{
    Q_DECLARE_TR_FUNCTIONS(ProfileColumns)

public:
    /// What is to be said of a line that is not UTF-8.
    static QString otherEncodingText();

    enum OfLines
    {
        NumberColumn,
        NarrowStateColumn,
        WideStateColumn,
        TextColumn
    };
    static std::vector<RecordColumn<ProfileDocument::Line>> ofLines();

    enum OfReadings
    {
        SectionColumn,
        KeyColumn,
        WideColumn,
        DifferenceColumn,
        NarrowColumn
    };
    static std::vector<RecordColumn<ProfileReading>> ofReadings();
};
