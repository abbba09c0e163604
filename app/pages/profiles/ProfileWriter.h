#pragma once

#include "app/pages/profiles/ProfileDocument.h"

#include <QCoreApplication>

/// One value to be written through one family.
struct ProfileChange
{
    ProfileFamily family = ProfileFamily::Wide;
    QString section;
    QString key;
    QString value;
};

/// Writes values through the profile service, after having tried on a copy what comes of it.
class ProfileWriter
{
    Q_DECLARE_TR_FUNCTIONS(ProfileWriter)

public:
    explicit ProfileWriter(const QString& file);

    /// Why the change must not be made, or an empty text: a name is missing, the file cannot be
    /// written, or the family would not read back what it wrote. The file is left alone.
    QString fault(const ProfileChange& change) const;

    /// Copies the file beside itself under a name that is free; returns it. Empty where that fails.
    QString backUp() const;

    /// Writes, and reads the file back; false when the family does not find the value in it.
    bool write(const ProfileChange& change) const;

private:
    bool readsBack(const ProfileChange& change) const;

    QString m_file;
};
