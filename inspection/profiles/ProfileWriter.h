#pragma once

#include "inspection/profiles/ProfileDocument.h"

#include <QCoreApplication>

/// One value to be written through one family, or what the family reads to be deleted.
struct ProfileChange
{
    enum class Action
    {
        Set,
        DeleteKey,
        DeleteSection
    };
    ProfileFamily family = ProfileFamily::Wide;
    QString section;
    QString key;   ///< unused where a section is deleted
    QString value; ///< used where a value is set
    Action action = Action::Set;
};

/// Tells what stands against a change, and copies the file before it.
class ProfileWriter
{
    Q_DECLARE_TR_FUNCTIONS(ProfileWriter)

public:
    explicit ProfileWriter(const QString& file);

    /// Why the change must not be tried, or an empty text: a name is missing, there is nothing to
    /// be deleted from, or the file cannot be written.
    QString fault(const ProfileChange& change) const;

    /// Why a change must not be made where a dry run has shown that the family would not read it
    /// back, or would still find what was deleted.
    static QString unreadable(const ProfileChange& change);

    /// Copies the file beside itself under a name that is free; returns it. Empty where that fails.
    QString backUp() const;

private:
    QString m_file;
};
