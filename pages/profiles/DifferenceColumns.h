#pragma once

#include "inspection/profiles/DifferenceRows.h"
#include "inspection/profiles/ProfileDifference.h"
#include "window/RecordsModel.h"

#include <QCoreApplication>
#include <QPalette>
#include <QStringList>

#include <memory>

/// What the table of a difference shows: a sign, the numbers of the line before and after, its end,
/// why the family does not keep it, and the line itself. Removed and added lines are told by their
/// sign, by a bold font and by a tint of the palette's base.
class DifferenceColumns
{
    Q_DECLARE_TR_FUNCTIONS(DifferenceColumns)

public:
    enum Column
    {
        SignColumn,
        BeforeColumn,
        AfterColumn,
        EndColumn,
        ReasonColumn,
        TextColumn
    };
    static std::vector<RecordColumn<DifferenceRow>>
    of(const std::shared_ptr<const ProfileDifference>& difference, const QPalette& palette);

    /// See ColumnFit.
    static QStringList samples();
};
