#pragma once

#include <QByteArray>
#include <QString>

/// The small pieces of which registry files are made.

/// The first line of a file. Its length is given because not every compiler counts it by itself in
/// a constant.
inline constexpr QLatin1String regFileHeader("Windows Registry Editor Version 5.00", 36);

/// The first line of a file of version 4, whose texts are in a code page instead of Unicode.
inline constexpr QLatin1String regFileHeader4("REGEDIT4", 8);

/// A text in quotes, with backslashes before quotes and backslashes.
QString quoteRegText(const QString& text);

/// Appends what stands in `line` from `position` up to the closing quote, without its backslashes,
/// to `text`. True when the quote is there: `position` is then behind it. False when the line ends
/// first; the text may go on in the next one.
bool unquoteRegText(const QString& line, int& position, QString& text);

/// Reads bytes of one or two hexadecimal digits, separated by commas; blanks are skipped, and an
/// empty list is no bytes. False for anything else.
bool parseHexBytes(const QString& list, QByteArray& bytes);

/// UTF-16 in little-endian order, without a terminator.
QByteArray utf16Of(const QString& text);

/// The text of UTF-16 bytes in little-endian order, up to its terminator.
QString textOfUtf16(const QByteArray& bytes);
