#include "platform/profiles/NarrowProfile.h"

#include "platform/profiles/NarrowOutput.h"
#include "platform/profiles/NarrowScanner.h"

#include <algorithm>

namespace {

constexpr QStringView lineFeed = u"\n";
constexpr QStringView equalsSign = u"=";

} // namespace

NarrowProfile::NarrowProfile(QStringView text) : m_text(text)
{
    Entries* section = nullptr;
    for (NarrowScanner scanner(text); scanner.next();) {
        if (scanner.isHeader()) {
            section = &m_sections[scanner.line()];
            // Intended: of several sections with one header the last one counts.
            section->clear();
        } else if (scanner.isEntry()) {
            section->push_back(entryOf(scanner.key(), scanner.value()));
        }
    }
}

NarrowProfile::Entry NarrowProfile::entryOf(QStringView key, QStringView value) const
{
    const auto number = [](qsizetype size) { return static_cast<std::uint32_t>(size); };
    return {number(key.data() - m_text.data()), number(key.size()),
            number(value.data() - m_text.data()), number(value.size())};
}

QStringView NarrowProfile::keyOf(const Entry& entry) const
{
    return entry.keySize == isSet ? m_set[entry.value].first : m_text.mid(entry.key, entry.keySize);
}

QStringView NarrowProfile::valueOf(const Entry& entry) const
{
    return entry.keySize == isSet ? m_set[entry.value].second
                                  : m_text.mid(entry.value, entry.valueSize);
}

void NarrowProfile::setValue(QStringView header, QStringView key, QStringView value)
{
    m_sections[header];
    m_added[header].push_back({0, isSet, static_cast<std::uint32_t>(m_set.size()), 0});
    m_set.emplace_back(key, value);
}

// All at once: an entry of its own each time would move all that follow it each time.
void NarrowProfile::takeSet()
{
    const auto isBefore = [this](const Entry& a, const Entry& b) { return keyOf(a) < keyOf(b); };
    for (auto& [header, added] : m_added) {
        Entries& entries = m_sections[header];
        sort(entries);
        sort(added);
        const auto count = static_cast<Entries::difference_type>(entries.size());
        entries.insert(entries.end(), added.begin(), added.end());
        std::inplace_merge(entries.begin(), entries.begin() + count, entries.end(), isBefore);
        leaveLastOnes(entries);
    }
    m_added.clear();
}

void NarrowProfile::writeTo(NarrowOutput& output)
{
    takeSet();
    for (auto& [header, entries] : m_sections) {
        output.append(header);
        output.append(lineFeed);
        sort(entries);
        for (const Entry& entry : entries) {
            output.append(keyOf(entry));
            output.append(equalsSign);
            output.append(valueOf(entry));
            output.append(lineFeed);
        }
    }
}

// Leaves the last one of the entries with the same key. A file that was written by writeTo() is in
// order already.
void NarrowProfile::sort(Entries& entries) const
{
    const auto isBefore = [this](const Entry& a, const Entry& b) { return keyOf(a) < keyOf(b); };
    const auto notBefore = [&](const Entry& a, const Entry& b) { return !isBefore(a, b); };
    if (std::adjacent_find(entries.begin(), entries.end(), notBefore) == entries.end())
        return;
    std::stable_sort(entries.begin(), entries.end(), isBefore);
    leaveLastOnes(entries);
}

void NarrowProfile::leaveLastOnes(Entries& entries) const
{
    const auto kept =
        std::unique(entries.rbegin(), entries.rend(),
                    [this](const Entry& a, const Entry& b) { return keyOf(a) == keyOf(b); });
    entries.erase(entries.begin(), kept.base());
}
