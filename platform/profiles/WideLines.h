#pragma once

#include "platform/profiles/LineReading.h"

#include <QByteArray>
#include <QHash>

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
    explicit WideLines(const QByteArray& bytes);

    /// Of each line of the file. An entry that QSettings keeps under a name that cannot be asked
    /// for, as one that ends with "/", is not found.
    const std::vector<LineReading>& readings() const { return m_readings; }

private:
    /// Where an entry stands.
    struct Place
    {
        std::size_t line = 0;
        int prefixSize = 0;
    };

    void skipMark();
    bool next();
    void skipComment();
    void scan();
    void skipEscape();
    void readLine();
    void readHeader();
    void readEntry();
    void readOther();
    bool isReplaced(const QString& name);
    void markContinuations();
    QByteArray keyBytes() const;
    std::size_t lineOf(int position) const;

    QByteArray m_bytes;
    std::vector<int> m_starts; ///< where each line of the file begins
    std::vector<LineReading> m_readings;
    int m_position = 0;
    int m_marked = -1; ///< where the first line begins behind a byte order mark, or -1
    int m_begin = 0;   ///< of the line being read
    int m_equals = -1; ///< its first unquoted "=", or -1
    bool m_isList = false;
    bool m_isEscaped = false;
    QString m_prefix; ///< of the names in the section
    QHash<QString, Place> m_names;
};
