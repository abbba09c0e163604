#include "inspection/profiles/ProfileDifference.h"

#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileForm.h"
#include "inspection/profiles/ReadableLine.h"

#include <unordered_set>

namespace {

using Texts = std::unordered_set<std::string_view>;

std::string_view withoutEnd(std::string_view line)
{
    const std::size_t last = line.find_last_not_of("\r\n");
    return last == std::string_view::npos ? std::string_view() : line.substr(0, last + 1);
}

// The added lines, as they are and without their ends.
Texts addedTexts(const LineDifference& lines, bool areEndsKept)
{
    Texts texts;
    for (const LineDifference::Hunk& hunk : lines.hunks()) {
        for (int line = hunk.after; line < hunk.after + hunk.added; ++line)
            texts.insert(areEndsKept ? lines.after().at(line) : withoutEnd(lines.after().at(line)));
    }
    return texts;
}

} // namespace

std::string_view writtenKey(std::string_view line)
{
    const std::string_view key = line.substr(0, line.find('='));
    return key.substr(0, key.find_last_not_of(" \t") + 1);
}

ProfileDifference::ProfileDifference(const QString& before, const QString& after,
                                     const ProfileChange& change)
    : m_lines(ProfileDocument::bytesOf(before), ProfileDocument::bytesOf(after)),
      m_rows(differenceRows(m_lines)),
      m_readings(before, change.family),
      m_family(change.family),
      m_isAskedFor(findAskedFor(FamilyLines(after, change.family), change)),
      m_hadEntry(m_readings.hasEntryOf(change)),
      m_formChanges(ProfileForm::of(m_lines.before()).changesTo(ProfileForm::of(m_lines.after())))
{
    findDestroyed();
    findFates();
}

bool ProfileDifference::findAskedFor(const FamilyLines& after, const ProfileChange& change) const
{
    if (m_lines.hunks().size() != 1 || change.action != ProfileChange::Action::Set)
        return m_lines.hunks().empty();
    const LineDifference::Hunk& hunk = m_lines.hunks().front();
    return losesValueOnly(hunk, after, change) && addsAskedForOnly(hunk, after, change);
}

// A remark behind the value, the way in which the key is written, and bytes that are no text were
// not asked to go.
bool ProfileDifference::losesValueOnly(const LineDifference::Hunk& hunk, const FamilyLines& after,
                                       const ProfileChange& change) const
{
    std::string_view key;
    for (int line = hunk.after; line < hunk.after + hunk.added; ++line)
        if (after.isEntryOf(line, change))
            key = writtenKey(m_lines.after().at(line));
    for (int line = hunk.before; line < hunk.before + hunk.removed; ++line) {
        if (!isAsked(m_readings, line, change) || m_readings.at(line).isCut ||
            !ReadableLine(m_lines.before(), line).isText())
            return false;
        if (m_readings.isEntryOf(line, change) && writtenKey(m_lines.before().at(line)) != key)
            return false;
    }
    return true;
}

bool ProfileDifference::addsAskedForOnly(const LineDifference::Hunk& hunk, const FamilyLines& after,
                                         const ProfileChange& change)
{
    for (int line = hunk.after; line < hunk.after + hunk.added; ++line) {
        const LineState state = after.at(line).state;
        const bool beginsSection = state == LineState::Header || state == LineState::Blank;
        if (!isAsked(after, line, change) && (hunk.removed > 0 || !beginsSection))
            return false;
    }
    return true;
}

bool ProfileDifference::isAsked(const FamilyLines& readings, int line, const ProfileChange& change)
{
    return readings.isEntryOf(line, change) || readings.at(line).state == LineState::Continuation;
}

void ProfileDifference::findDestroyed()
{
    for (const LineDifference::Hunk& hunk : m_lines.hunks()) {
        for (int line = hunk.before; line < hunk.before + hunk.removed; ++line)
            if (!ReadableLine(m_lines.before(), line).isText())
                m_destroyed.push_back(line + 1);
    }
}

void ProfileDifference::findFates()
{
    m_fates.resize(static_cast<std::size_t>(m_lines.before().count()));
    const Texts whole = addedTexts(m_lines, true);
    const Texts texts = addedTexts(m_lines, false);
    for (const LineDifference::Hunk& hunk : m_lines.hunks()) {
        for (int line = hunk.before; line < hunk.before + hunk.removed; ++line) {
            const std::string_view bytes = m_lines.before().at(line);
            Fate& fate = m_fates[static_cast<std::size_t>(line)];
            if (whole.count(bytes) > 0)
                fate = Fate::Moved;
            else if (texts.count(withoutEnd(bytes)) > 0)
                fate = Fate::EndChanged;
        }
    }
}
