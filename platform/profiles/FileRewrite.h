#pragma once

#include <QByteArray>
#include <QFile>

/// Replaces the text of a file in place, so that inode, links and permissions stay.
///
/// There is no step at which the file is empty. A program that is killed leaves the old or the new
/// text, with blank lines behind it at most, unless the kernel was putting in several pages just
/// then: so no more pages are written than have changed.
class FileRewrite
{
public:
    /// For an open file, and as many bytes as its new text has.
    FileRewrite(QFile& file, qint64 size);

    /// Makes the file as long as its new text at least; with blank lines, which no family of
    /// profile calls reads. False, and the old text is all there is, where the disk is full.
    bool makeRoom();

    /// Writes the next bytes of the text over the old one.
    void add(const QByteArray& bytes);

    /// Cuts what is left of a longer text, if the file has taken the new one.
    void finish();

private:
    /// Bytes from `begin` on, up to `end`.
    struct Range
    {
        int begin = 0;
        int end = 0;
    };

    QByteArray withBlankLines(const QByteArray& bytes) const;
    Range changed(const QByteArray& bytes);
    void write(const QByteArray& bytes, const Range& range);

    QFile& m_file;
    qint64 m_size;
    qint64 m_formerSize;
    qint64 m_offset = 0;
    bool m_isTaken = true;
};
