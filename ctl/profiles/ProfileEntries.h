#pragma once

#include "inspection/profiles/ParsedProfileCache.h"
#include "inspection/profiles/ProfileDocument.h"
#include "inspection/profiles/ProfileReader.h"
#include "inspection/profiles/ProfileReading.h"

#include <map>
#include <optional>

/// All names that either family finds in a file, with what the service answers for them. The wide
/// family is asked; the narrow one reads the whole file for each answer, so that its answers are
/// taken from the lines, by the rule by which it takes them.
class ProfileEntries
{
public:
    /// Throws a Failure where there is no such file, or where it cannot be a profile.
    explicit ProfileEntries(const QString& file);

    int count() const { return m_document.names().count(); }
    ProfileDocument::Name name(int index) const { return m_document.name(index); }
    ProfileReading reading(int index) const;
    /// True where the narrow family finds the name.
    bool isNarrow(int index) const { return narrow(name(index)).has_value(); }

    /// What a family answers; nothing where it does not find the name.
    std::optional<QString> wide(const ProfileDocument::Name& name) const;
    std::optional<QString> narrow(const ProfileDocument::Name& name) const;

private:
    ProfileDocument m_document;
    std::map<ProfileDocument::Name, QString> m_narrow;
    ProfileReader m_reader;
    ParsedProfileCache m_cache;
};

/// The path of a profile that is there, absolute. Throws a Failure where there is none.
QString existingProfile(const QString& file);
