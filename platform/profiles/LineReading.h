#pragma once

#include <QString>

/// The two families of profile calls, which share nothing but the files.
enum class ProfileFamily
{
    Wide,
    Narrow
};

/// What a profile family makes of one line of a file.
enum class LineState : unsigned char
{
    Blank,
    Header,
    Entry,
    Comment,        ///< dropped, as who wrote it meant
    NoEquals,       ///< dropped
    TwoEquals,      ///< dropped: more than one "="
    BeforeHeader,   ///< dropped: no section
    ReplacedHeader, ///< dropped: the same header comes again
    ReplacedKey,    ///< dropped: the same key comes again in the section
    Unreachable,    ///< kept in the file, but no section name leads there
    Continuation,   ///< part of the line above
    NotFound,       ///< looks like an entry, but the family does not find it
    Untold          ///< nobody has looked: the file is too large for that
};

struct LineReading
{
    LineState state = LineState::Blank;
    /// What to ask the family for; of entries only.
    QString section;
    QString key;
    /// Why the value is not what stands behind the "="; of lines that are kept, and of the wide
    /// family only.
    bool isList = false;    ///< of more than one value, for a comma: reads as empty
    bool isCut = false;     ///< ends before a semicolon
    bool isEscaped = false; ///< holds a backslash, which begins an escape
};

/// A reading without its names, in one byte: a large file has millions of lines.
struct LineMark
{
    LineMark() : LineMark(LineState::Blank) {}
    explicit LineMark(LineState lineState)
        : state(lineState), isList(false), isCut(false), isEscaped(false)
    {
    }

    LineState state : 4;
    bool isList : 1;
    bool isCut : 1;
    bool isEscaped : 1;
};

/// A reading of that mark; the names are empty.
LineReading readingOf(LineMark mark);

/// True where the line is no longer in the file after the family has written to it. Blank lines,
/// which go too, are not counted: they hold nothing.
bool isLost(LineState state);
/// True where that holds, or a part of the line goes.
bool isLost(const LineReading& reading);
