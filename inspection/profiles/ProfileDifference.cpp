#include "inspection/profiles/ProfileDifference.h"

#include "inspection/profiles/FileForm.h"
#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ReadableLine.h"

ProfileDifference::ProfileDifference(const QString& before, const QString& after,
                                     const ProfileChange& change)
    : m_lines(ProfileDocument::bytesOf(before), ProfileDocument::bytesOf(after)),
      m_readings(before, change.family),
      m_family(change.family),
      m_isAskedFor(findAskedFor(FamilyLines(after, change.family), change)),
      m_hadEntry(m_readings.hasEntryOf(change)),
      m_formChanges(FileForm(m_lines.before()).changesTo(FileForm(m_lines.after())))
{
    findDestroyed();
}

bool ProfileDifference::findAskedFor(const FamilyLines& after, const ProfileChange& change) const
{
    if (m_lines.hunks().size() > 1 || change.action != ProfileChange::Action::Set)
        return m_lines.hunks().empty();
    const auto isAsked = [&change](const FamilyLines& readings, int line) {
        return readings.isEntryOf(line, change) ||
               readings.at(line).state == LineState::Continuation;
    };
    for (const LineDifference::Hunk& hunk : m_lines.hunks()) {
        for (int line = hunk.before; line < hunk.before + hunk.removed; ++line)
            if (!isAsked(m_readings, line))
                return false;
        for (int line = hunk.after; line < hunk.after + hunk.added; ++line) {
            const LineState state = after.at(line).state;
            const bool beginsSection = state == LineState::Header || state == LineState::Blank;
            if (!isAsked(after, line) && (hunk.removed > 0 || !beginsSection))
                return false;
        }
    }
    return true;
}

void ProfileDifference::findDestroyed()
{
    for (const LineDifference::Hunk& hunk : m_lines.hunks()) {
        for (int line = hunk.before; line < hunk.before + hunk.removed; ++line)
            if (!ReadableLine(m_lines.before(), line).isText())
                m_destroyed.push_back(line + 1);
    }
}
