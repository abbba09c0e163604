#pragma once

#include "inspection/profiles/ProfileLoading.h"
#include "inspection/profiles/ProfileWriting.h"

/// Tries a change on a copy of the file, and finds out what else the family would change in it, in
/// steps of a few milliseconds each but for the call that writes.
class ProfileDryRun
{
public:
    ProfileDryRun(const QString& file, const ProfileChange& change);

    /// False when nothing was left to be done.
    bool step();

    const QString& file() const { return m_loading.document().path(); }
    const ProfileChange& change() const { return m_change; }

    /// What follows is complete once nothing is left to be done. True where the family finds the
    /// value in the copy that it has written; the rest is found out only then.
    bool isReadBack() const { return m_writing.isReadBack(); }
    /// The file as it was found.
    const ProfileDocument& document() const { return m_loading.document(); }
    const QByteArray& bytes() const { return m_loading.bytes(); }
    /// See NarrowRewriting::changes; empty for the wide family.
    const QString& changes() const { return m_changes; }
    /// True where the file would lose nothing and not change otherwise.
    bool isHarmless() const;

private:
    QString copiedFile() const;
    bool copy();
    void compare();

    ProfileChange m_change;
    QTemporaryDir m_folder;
    ProfileLoading m_loading;
    ProfileWriting m_writing;
    QString m_changes;
    bool m_isCopied = false;
    bool m_isCompared = false;
};
