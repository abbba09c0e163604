#pragma once

#include "inspection/profiles/ByteLines.h"

/// What two versions of a file have in common, line by line, told from their bytes alone: lines
/// that look equal but are encoded in another way, or end in another way, differ.
class LineDifference
{
public:
    /// Lines that were replaced, removed (none after) or added (none before); what lies between
    /// two hunks is equal. Lines are counted from 0.
    struct Hunk
    {
        int before; ///< the first line
        int removed;
        int after; ///< the first line
        int added;
    };

    /// Takes a second for files of ten megabytes; may be made outside of the GUI thread.
    LineDifference(const QByteArray& before, const QByteArray& after);

    const ByteLines& before() const { return m_before; }
    const ByteLines& after() const { return m_after; }
    /// In the order of both versions.
    const std::vector<Hunk>& hunks() const { return m_hunks; }
    /// How many lines are removed, or added, in all.
    int removed() const;
    int added() const;

private:
    void addHunk(int before, int beforeEnd, int after, int afterEnd);

    ByteLines m_before;
    ByteLines m_after;
    std::vector<Hunk> m_hunks;
};
