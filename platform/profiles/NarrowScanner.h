#pragma once

#include "platform/profiles/LineReading.h"

#include <QStringView>

/// Reads a profile's text line by line, by the rules of the narrow profile calls.
///
/// A line that begins with "[" is a header; the whole line, with its brackets and untrimmed, names
/// the section. A line with exactly one "=" behind a header is an entry, key and value trimmed.
/// Everything else is dropped: lines without "=" or with more than one, and what stands before the
/// first header. There are no comments: what looks like one is dropped for its "=" only.
///
/// Hands out views, not copies: the text must outlive it.
class NarrowScanner
{
public:
    /// Lines end with a line feed; carriage returns are characters like others. What follows the
    /// last line feed is a line unless it is empty.
    /// Where the text goes on in a section, `header` is that section's.
    explicit NarrowScanner(QStringView text, QStringView header = {})
        : m_rest(text), m_header(header)
    {
    }

    /// Goes to the first line, then to the next one; false behind the last one.
    bool next();

    bool isHeader() const { return m_kind == Kind::Header; }
    /// True for entries, also for those that no section name leads to.
    bool isEntry() const { return m_kind == Kind::Entry; }
    /// What the line is by itself, and why it is dropped. Whether a later line replaces it is not
    /// known here.
    LineState state() const;

    /// The line without its line feed.
    QStringView line() const { return m_line; }
    /// The header of the section that the line stands in, or that it begins.
    QStringView header() const { return m_header; }
    /// Of an entry only.
    QStringView key() const { return m_line.left(m_equals).trimmed(); }
    QStringView value() const { return m_line.mid(m_equals + 1).trimmed(); }

private:
    enum class Kind
    {
        Header,
        Entry,
        Dropped
    };

    LineState entryState() const;
    LineState droppedState() const;

    QStringView m_rest;
    QStringView m_line;
    QStringView m_header;
    qsizetype m_equals = -1; ///< the line's first "="; of headers not looked for
    qsizetype m_secondEquals = -1;
    Kind m_kind = Kind::Dropped;
};

// Inline, so that a read of the narrow family costs no more than a loop over the lines of its own.
inline bool NarrowScanner::next()
{
    if (m_rest.isEmpty())
        return false;
    const qsizetype end = m_rest.indexOf(QLatin1Char('\n'));
    m_line = end < 0 ? m_rest : m_rest.left(end);
    m_rest = end < 0 ? QStringView() : m_rest.mid(end + 1);
    if (m_line.startsWith(QLatin1Char('['))) {
        m_header = m_line;
        m_kind = Kind::Header;
        return true;
    }
    constexpr QChar equalsSign = QLatin1Char('=');
    m_equals = m_line.indexOf(equalsSign);
    m_secondEquals = m_equals < 0 ? -1 : m_line.indexOf(equalsSign, m_equals + 1);
    // A value with a "=" in it is lost. Intended.
    const bool isKept = m_equals >= 0 && m_secondEquals < 0 && !m_header.isEmpty();
    m_kind = isKept ? Kind::Entry : Kind::Dropped;
    return true;
}
