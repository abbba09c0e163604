#include "ctl/profiles/ProfileBatch.h"

#include "ctl/profiles/ProfileEntries.h"
#include "inspection/profiles/LineDifference.h"
#include "inspection/profiles/ProfileDifference.h"
#include "inspection/profiles/ReadableLine.h"

#include <algorithm>
#include <map>
#include <utility>

namespace {

bool isRead(const ProfileEntries& file, ProfileFamily family, const ProfileEntry& entry)
{
    const ProfileDocument::Name name(entry.section, entry.key);
    return (family == ProfileFamily::Wide ? file.wide(name) : file.narrow(name)) == entry.value;
}

// The same name may be written in other bytes.
bool isWrittenAs(const std::map<QString, std::string_view>& keys, const QString& name,
                 std::string_view line)
{
    const auto found = keys.find(name);
    return found == keys.end() || found->second == writtenKey(line);
}

} // namespace

ProfileBatch::ProfileBatch(ProfileFamily family, std::vector<ProfileEntry> entries)
    : m_family(family), m_entries(std::move(entries))
{
    for (const ProfileEntry& entry : m_entries)
        m_names.insert(nameOf(entry.section, entry.key));
}

ProfileChange ProfileBatch::change(const ProfileEntry& entry) const
{
    return {m_family, entry.section, entry.key, entry.value, ProfileChange::Action::Set};
}

void ProfileBatch::leaveOutWhatIsRead(const QString& file)
{
    const ProfileEntries read(file);
    const auto isOld = [&](const ProfileEntry& entry) { return isRead(read, m_family, entry); };
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), isOld), m_entries.end());
    *this = ProfileBatch(m_family, std::move(m_entries));
}

bool ProfileBatch::write(const QString& file) const
{
    return m_family == ProfileFamily::Wide
               ? ProfileWriting::wide(file.toStdWString().c_str(), m_entries)
               : ProfileWriting::narrow(file, m_entries);
}

const ProfileEntry* ProfileBatch::firstUnread(const QString& file) const
{
    const ProfileEntries read(file);
    const auto unread =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [&](const ProfileEntry& entry) { return !isRead(read, m_family, entry); });
    return unread == m_entries.end() ? nullptr : &*unread;
}

// The wide family takes a section and a key for one name.
QString ProfileBatch::nameOf(const QString& section, const QString& key) const
{
    if (m_family == ProfileFamily::Narrow)
        return section + QLatin1Char('\n') + key;
    return section.isEmpty() ? key : ProfileWriting::wideName(section, key);
}

bool ProfileBatch::isEntry(const LineReading& reading) const
{
    return reading.state == LineState::Continuation ||
           (reading.state == LineState::Entry &&
            m_names.count(nameOf(reading.section, reading.key)) > 0);
}

bool ProfileBatch::isAddition(const LineReading& reading) const
{
    return reading.state == LineState::Header || reading.state == LineState::Blank ||
           isEntry(reading);
}

// A remark behind a value, the way in which a key is written, and bytes that are no text were not
// asked to go.
bool ProfileBatch::isAllThatChanges(const LineDifference& lines, const FamilyLines& before,
                                    const FamilyLines& after) const
{
    std::map<QString, std::string_view> keys;
    for (const LineDifference::Hunk& hunk : lines.hunks()) {
        for (int line = hunk.after; line < hunk.after + hunk.added; ++line) {
            const LineReading& reading = after.at(line);
            if (!isAddition(reading))
                return false;
            if (reading.state == LineState::Entry)
                keys[nameOf(reading.section, reading.key)] = writtenKey(lines.after().at(line));
        }
    }
    for (const LineDifference::Hunk& hunk : lines.hunks()) {
        for (int line = hunk.before; line < hunk.before + hunk.removed; ++line) {
            const LineReading& reading = before.at(line);
            if (!isEntry(reading) || reading.isCut || !ReadableLine(lines.before(), line).isText())
                return false;
            if (reading.state == LineState::Entry &&
                !isWrittenAs(keys, nameOf(reading.section, reading.key), lines.before().at(line)))
                return false;
        }
    }
    return true;
}
