#pragma once

#include "inspection/profiles/ParsedProfileCache.h"
#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReader.h"
#include "inspection/profiles/ProfileReading.h"

#include <set>

/// All names that either family finds in a file, with what the service answers for them.
class ProfileEntries
{
public:
    /// Throws a Failure where there is no such file, or where it cannot be a profile.
    explicit ProfileEntries(const QString& file);

    int count() const { return m_document.names().count(); }
    ProfileDocument::Name name(int index) const { return m_document.name(index); }
    /// Asks both families.
    ProfileReading reading(int index) const;
    /// True where the narrow family finds the name, which its answer does not tell.
    bool isNarrow(int index) const { return m_narrow.count(name(index)) > 0; }

private:
    ProfileDocument m_document;
    std::set<ProfileDocument::Name> m_narrow;
    ProfileReader m_reader;
    ParsedProfileCache m_cache;
};

/// The path of a profile that is there, absolute. Throws a Failure where there is none.
QString existingProfile(const QString& file);
