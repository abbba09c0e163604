#pragma once

#include "platform/profiles/LineIndex.h"
#include "platform/profiles/LineReading.h"
#include "platform/profiles/NameTable.h"

#include <QByteArray>

#include <vector>

/// Explains for each line of a profile's bytes what the wide profile calls, which leave the reading
/// to QSettings, make of it.
///
/// What QSettings calls a line is not a line of the file: it goes on behind a backslash at its end
/// and within quotes, and ends at an unquoted semicolon. This follows what QSettings finds once it
/// has parsed all sections, with two exceptions. A carriage return alone ends a line for QSettings,
/// but not a line of the file: where there are such, a line of the file has the reading of the last
/// entry in it. A value that begins with "@" is taken as text, although QSettings may make a value
/// of another type of it.
class WideLines
{
public:
    /// Reads nothing yet.
    explicit WideLines(const QByteArray& bytes) : m_bytes(bytes), m_lines(bytes) {}

    /// Reads a small piece; false when all has been read.
    bool step();

    /// The lines of the file; this and what follows is complete when step() is done.
    const LineIndex& lines() const { return m_lines; }
    LineMark mark(std::size_t line) const { return m_marks[line]; }
    /// A line with its names. An entry that QSettings keeps under a name that cannot be asked for,
    /// as one that ends with "/", is not found.
    LineReading reading(std::size_t line) const;

    /// What the names in each section begin with, one for each header.
    std::vector<QString> prefixes() const;

    /// Of each line; reads first what has not been read.
    std::vector<LineReading> readings();

private:
    struct Header
    {
        int begin = 0;
        int end = 0;
    };
    struct Entry
    {
        int begin = 0; ///< of what QSettings takes for the key
        int equals = 0;
        int header = -1; ///< index of the section's header, or -1
    };

    void start();
    void skipMark();
    char at(int position) const;
    void begin();
    void skipComment();
    bool scan(int stop);
    void skipEscape();
    void readLine();
    void readHeader();
    void readEntry();
    void readOther();
    bool isReplaced(const QString& name);
    void markContinuations();
    LineMark& markAt(int position) { return m_marks[m_lines.lineOf(position)]; }
    QString prefixOf(const Header& header) const;
    QString prefixOf(const Entry& entry) const;
    QString keyOf(const Entry& entry) const;

    QByteArray m_bytes;
    LineIndex m_lines;
    std::vector<LineMark> m_marks;
    std::vector<Header> m_headers;
    std::vector<Entry> m_entries; ///< in the order of the file
    NameTable m_names;            ///< places are indexes of m_entries
    QString m_prefix;             ///< of the names in the section
    bool m_isStarted = false;
    int m_position = 0;
    int m_marked = -1; ///< where the first line begins behind a byte order mark, or -1
    // The line being read.
    bool m_isScanning = false;
    bool m_isQuoted = false;
    int m_begin = 0;
    int m_equals = -1; ///< the first unquoted "=", or -1
    bool m_isList = false;
    bool m_isEscaped = false;
};
