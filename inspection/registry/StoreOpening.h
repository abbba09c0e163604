#pragma once

#include <QStringList>

/// Makes the store take its file apart in small steps. By itself it takes a section apart when
/// something in it is asked for first, and all at once when it is listed, which holds the window up
/// where the file is large.
class StoreOpening
{
public:
    /// Looks for the sections in the store's file. One that is missed does no harm: it is taken
    /// apart with the first listing.
    StoreOpening();

    /// The top-level groups that have a section in the file; the empty one holds what stands in
    /// none.
    const QStringList& sections() const { return m_sections; }

    /// Takes the next section apart; returns false when none is left.
    bool step();

private:
    QStringList m_sections;
    int m_at = 0;
};
