#pragma once

#include "inspection/profiles/ByteLines.h"

#include <QCoreApplication>
#include <QStringList>

/// How a file is written down, as its bytes tell: the encoding, the byte order mark, the line ends.
class FileForm
{
    Q_DECLARE_TR_FUNCTIONS(FileForm)

public:
    explicit FileForm(const ByteLines& lines);

    /// In sentences, what the other form has changed; empty for the same form, and where either
    /// file has no lines.
    QStringList changesTo(const FileForm& other) const;

private:
    QString encoding() const;
    QString lineEnds() const;
    bool hasSameLineEnds(const FileForm& other) const;

    ByteLines::Unit m_unit;
    int m_lines;
    bool m_isMarked;
    bool m_isText = true;
    bool m_isOpen = false; ///< the last line has no end
    int m_lineFeeds = 0;
    int m_returns = 0; ///< carriage returns with a line feed
};
