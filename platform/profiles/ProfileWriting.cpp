#include "platform/profiles/ProfileWriting.h"

#include "platform/profiles/NarrowLines.h"
#include "platform/profiles/NarrowProfile.h"
#include "platform/profiles/NarrowProfileFile.h"
#include "platform/profiles/WideProfile.h"

QString ProfileWriting::wideName(const QString& section, const QString& key)
{
    return section + QLatin1Char('/') + key;
}

bool ProfileWriting::narrow(const QString& file, const std::vector<ProfileEntry>& entries)
{
    NarrowProfileFile profileFile(file);
    if (!profileFile.open(QIODevice::ReadWrite))
        return false;
    const std::optional<QString> text = profileFile.text();
    if (!text)
        return false;
    std::vector<QString> headers; // of which the profile keeps views
    headers.reserve(entries.size());
    NarrowProfile profile(*text);
    for (const ProfileEntry& entry : entries) {
        headers.push_back(narrowHeader(entry.section));
        profile.setValue(headers.back(), entry.key, entry.value);
    }
    profileFile.rewrite(profile);
    return true;
}

// Saved here and not when the settings are destroyed, which would not tell that no memory was left.
bool ProfileWriting::wide(const wchar_t* file, const std::vector<ProfileEntry>& entries)
{
    WideProfile profile(file);
    // A device keeps nothing, and counts as written. Intended: callers have always been told so.
    if (!profile.isReadable())
        return profile.isDevice();
    std::vector<std::pair<QString, QString>> named;
    named.reserve(entries.size());
    for (const ProfileEntry& entry : entries)
        named.emplace_back(wideName(entry.section, entry.key), entry.value);
    profile.write(named);
    return true;
}
