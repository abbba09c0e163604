#pragma once

#include "inspection/profiles/ProfileWriter.h"

#include <QTemporaryDir>

#include <memory>

class ParsedProfileCache;

/// Writes a value through the profile service and reads it back, in steps of a few milliseconds
/// each but for the call that writes.
class ProfileWriting
{
public:
    ProfileWriting(const QString& file, const ProfileChange& change);
    ~ProfileWriting();

    const ProfileChange& change() const { return m_change; }

    /// False when nothing was left to be done.
    bool step();

    /// True once the service says that it has written.
    bool isWritten() const { return m_isWritten; }
    /// True once the family has found the value in what lies on disk.
    bool isReadBack() const { return m_isReadBack; }

private:
    bool isWide() const { return m_change.family == ProfileFamily::Wide; }
    void open();
    void takeApart() const;
    void write();
    void copy();
    void read();
    QString copiedFile() const;

    QString m_file;
    ProfileChange m_change;
    QTemporaryDir m_folder;
    std::unique_ptr<ParsedProfileCache> m_hold;
    int m_stage = 0;
    bool m_isWritten = false;
    bool m_isCopied = false;
    bool m_isReadBack = false;
};
