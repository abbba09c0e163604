#pragma once

#include "inspection/profiles/ProfileDocument.h"

#include <QCoreApplication>

/// One value to be written through one family.
struct ProfileChange
{
    ProfileFamily family = ProfileFamily::Wide;
    QString section;
    QString key;
    QString value;
};

/// Tells what stands against a change, and copies the file before it.
class ProfileWriter
{
    Q_DECLARE_TR_FUNCTIONS(ProfileWriter)

public:
    explicit ProfileWriter(const QString& file);

    /// Why the change must not be tried, or an empty text: a name is missing, or the file cannot be
    /// written.
    QString fault(const ProfileChange& change) const;

    /// Why a change must not be made where a dry run has shown that the family would not read it
    /// back.
    static QString unreadable(ProfileFamily family);

    /// Copies the file beside itself under a name that is free; returns it. Empty where that fails.
    QString backUp() const;

private:
    QString m_file;
};
