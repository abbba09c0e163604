#include "inspection/profiles/FileForm.h"

#include "inspection/profiles/ReadableLine.h"

#include <QLocale>

FileForm::FileForm(const ByteLines& lines)
    : m_unit(lines.unit()),
      m_lines(lines.count()),
      m_isMarked(m_unit != ByteLines::Unit::Byte || lines.bytes().startsWith("\xef\xbb\xbf"))
{
    for (int number = 0; number < m_lines; ++number) {
        const ReadableLine line(lines, number);
        m_isText = m_isText && line.isText();
        switch (line.end()) {
        case ReadableLine::End::None: m_isOpen = true; break;
        case ReadableLine::End::LineFeed: ++m_lineFeeds; break;
        case ReadableLine::End::CarriageReturnLineFeed: ++m_returns; break;
        }
    }
}

QStringList FileForm::changesTo(const FileForm& other) const
{
    QStringList sentences;
    if (m_lines == 0 || other.m_lines == 0)
        return sentences;
    if (encoding() != other.encoding())
        sentences << tr("The encoding changes: %1, then %2.").arg(encoding(), other.encoding());
    if (m_isMarked && !other.m_isMarked)
        sentences << tr("The byte order mark goes.");
    if (!m_isMarked && other.m_isMarked)
        sentences << tr("A byte order mark is added.");
    if (!hasSameLineEnds(other))
        sentences << tr("The line ends change: %1, then %2.").arg(lineEnds(), other.lineEnds());
    if (m_isOpen && !other.m_isOpen)
        sentences << tr("The last line gets a line end.");
    return sentences;
}

QString FileForm::encoding() const
{
    if (m_unit != ByteLines::Unit::Byte)
        return m_unit == ByteLines::Unit::LittleEndianPair ? QStringLiteral("UTF-16LE")
                                                           : QStringLiteral("UTF-16BE");
    return m_isText ? QStringLiteral("UTF-8") : tr("not UTF-8");
}

QString FileForm::lineEnds() const
{
    const QLocale locale;
    QStringList kinds;
    if (m_returns > 0)
        kinds << tr("CRLF in %1").arg(locale.toString(m_returns));
    if (m_lineFeeds > 0)
        kinds << tr("LF in %1").arg(locale.toString(m_lineFeeds));
    return kinds.isEmpty() ? tr("none") : kinds.join(tr(", ", "between kinds of line ends"));
}

// Of the same kinds, however many lines there are.
bool FileForm::hasSameLineEnds(const FileForm& other) const
{
    const bool isSame =
        (m_returns > 0) == (other.m_returns > 0) && (m_lineFeeds > 0) == (other.m_lineFeeds > 0);
    return isSame || (m_returns == 0 && other.m_returns == 0);
}
