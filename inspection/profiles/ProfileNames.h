#pragma once

#include "inspection/profiles/ProfileLines.h"
#include "platform/profiles/NameTable.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

/// What the lines of a profile name for either family, each name once, in the order of the file.
class ProfileNames
{
public:
    /// Section and key.
    using Name = std::pair<QString, QString>;

    /// Where a name stands: a line that gives it, and for which family.
    struct Place
    {
        int line = 0;
        ProfileFamily family = ProfileFamily::Wide;
    };

    /// Looks for this name, and for no other one any more, also among those that have been
    /// collected already.
    void lookFor(const Name& name);

    /// Collects the names of some lines, which have to be the same each time, or looks at some
    /// again; false when all names are known.
    bool step(const ProfileLines& lines);

    int count() const { return static_cast<int>(m_places.size()); }
    Place place(int name) const { return m_places[static_cast<std::size_t>(name)]; }
    Name name(const ProfileLines& lines, int name) const;
    /// The first name that this line gives; -1 where it gives none.
    int ofLine(int line) const;
    /// The name that was looked for, or -1.
    int found() const { return m_found; }

private:
    /// A name that a line gives, and that another line has given before.
    struct Repetition
    {
        int line = 0;
        int name = 0;
    };

    void lookAgain(const ProfileLines& lines);
    void addLine(const ProfileLines& lines, int line);
    void addUnlessKnown(const ProfileLines& lines, const Place& place, const Name& name);
    void add(const Place& place, const Name& name);

    std::vector<Place> m_places; ///< in the order of the lines
    std::vector<Repetition> m_repetitions;
    NameTable m_single; ///< names that the families do not find in the same line
    std::optional<Name> m_wanted;
    int m_found = -1;
    int m_next = 0;       ///< line
    int m_unlookedAt = 0; ///< so many names have been collected before one was looked for
};
