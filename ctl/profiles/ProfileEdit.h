#pragma once

#include "ctl/ExitStatus.h"
#include "ctl/profiles/ProfileBatch.h"
#include "inspection/profiles/ProfileWriter.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <optional>

class Arguments;
class Output;
class QCommandLineParser;

/// Changes that are tried on a copy of a profile, through the service, and then put in the file's
/// place all at once: the file is never half written.
class ProfileEdit
{
    Q_DECLARE_TR_FUNCTIONS(ProfileEdit)

public:
    /// The options --dry-run and --force, and those of the family.
    static void addOptions(QCommandLineParser& parser);

    /// The file need not be there. Throws a Failure where it cannot be a profile.
    explicit ProfileEdit(const QString& file);

    /// Makes a change on the copy. Throws a Failure where it is not possible, or where the family
    /// would not read it back.
    void make(const ProfileChange& change);

    /// Sets entries on the copy, likewise.
    void make(ProfileBatch batch);

    /// Prints the difference in a dry run, otherwise writes the file. A change that makes more of
    /// it than was asked for is written only with --force: No without.
    ExitStatus end(const Arguments& arguments, Output& output) const;

private:
    void write(const ProfileBatch& batch) const;
    void save(const QByteArray& bytes) const;
    QString copy() const { return m_folder.filePath(QStringLiteral("profile.ini")); }

    QTemporaryDir m_folder;
    QString m_shown; ///< the path as it was given
    QString m_file;
    std::optional<QByteArray> m_former;
    bool m_isAskedFor = true;
};
