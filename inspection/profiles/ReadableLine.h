#pragma once

#include "inspection/profiles/ByteLines.h"

#include <QString>

/// A line of a file as people read it, with nothing hidden: what is not UTF-8, and what could not
/// be seen, stands there as the numbers of its bytes ("\xE4").
class ReadableLine
{
public:
    enum class End
    {
        None,
        LineFeed,
        CarriageReturnLineFeed
    };

    /// `lines` must outlive this.
    ReadableLine(const ByteLines& lines, int number);

    /// Without the line end, and with the numbers of a byte order mark. Of a longer line only the
    /// beginning, a few thousand characters.
    QString text() const;
    QString textWithoutMark() const;
    End end() const { return m_end; }
    /// False where bytes of the line are no characters in the file's encoding.
    bool isText() const;
    /// True where the bytes are UTF-8 throughout.
    static bool isUtf8(std::string_view bytes);

private:
    bool dropEnd(char character);
    QString pairs() const;
    QString utf8() const;

    std::string_view m_mark;    ///< the byte order mark
    std::string_view m_content; ///< what follows, without the line end
    ByteLines::Unit m_unit;
    End m_end = End::None;
};
