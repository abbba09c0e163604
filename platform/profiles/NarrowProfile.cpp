#include "platform/profiles/NarrowProfile.h"

#include "platform/profiles/NarrowScanner.h"

#include <algorithm>

namespace {

constexpr QChar lineFeed = QLatin1Char('\n');
constexpr QChar equalsSign = QLatin1Char('=');

void append(QString& text, QStringView part)
{
    text.append(part.data(), static_cast<int>(part.size()));
}

} // namespace

NarrowProfile::NarrowProfile(QStringView text)
{
    Entries* section = nullptr;
    for (NarrowScanner scanner(text); scanner.next();) {
        if (scanner.isHeader()) {
            section = &m_sections[scanner.line()];
            // Intended: of several sections with one header the last one counts.
            section->clear();
        } else if (scanner.isEntry()) {
            section->push_back({scanner.key(), scanner.value()});
        }
    }
}

QString NarrowProfile::value(QStringView header, QStringView key) const
{
    const auto section = m_sections.find(header);
    if (section == m_sections.end())
        return {};
    const Entries& entries = section->second;
    const auto entry = std::find_if(entries.rbegin(), entries.rend(),
                                    [key](const Entry& each) { return each.key == key; });
    return entry == entries.rend() ? QString() : entry->value.toString();
}

void NarrowProfile::setValue(QStringView header, QStringView key, QStringView value)
{
    Entries& entries = m_sections[header];
    sort(entries);
    const auto place =
        std::lower_bound(entries.begin(), entries.end(), key,
                         [](const Entry& entry, QStringView name) { return entry.key < name; });
    if (place != entries.end() && place->key == key)
        place->value = value;
    else
        entries.insert(place, {key, value});
}

QString NarrowProfile::toText()
{
    QString text;
    for (auto& [header, entries] : m_sections) {
        append(text, header);
        text.append(lineFeed);
        sort(entries);
        for (const Entry& entry : entries) {
            append(text, entry.key);
            text.append(equalsSign);
            append(text, entry.value);
            text.append(lineFeed);
        }
    }
    return text;
}

// Leaves the last one of the entries with the same key. A file that was written by toText() is in
// order already.
void NarrowProfile::sort(Entries& entries)
{
    const auto notBefore = [](const Entry& a, const Entry& b) { return !(a.key < b.key); };
    if (std::adjacent_find(entries.begin(), entries.end(), notBefore) == entries.end())
        return;
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.key < b.key; });
    const auto kept = std::unique(entries.rbegin(), entries.rend(),
                                  [](const Entry& a, const Entry& b) { return a.key == b.key; });
    entries.erase(entries.begin(), kept.base());
}
