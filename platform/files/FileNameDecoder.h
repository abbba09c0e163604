#pragma once

#include <QString>

class QTextCodec;

/// Reads the names of files: which of them are text in the locale's encoding, and which text. One
/// that is not has no place in what the directory service lists.
class FileNameDecoder
{
public:
    enum class Result
    {
        Text,
        InvalidBytes, ///< some of its bytes stand for no character
        CutShort      ///< it ends within a character
    };

    /// Decodes as the locale says at this moment.
    FileNameDecoder();

    bool isUtf8() const { return m_isUtf8; }

    /// Writes the text of the NUL-terminated `name` to `text`, which is of no use unless the result
    /// is `Text`. A byte order mark at its start is a part of the name.
    Result decode(const char* name, QString& text) const;

private:
    const QTextCodec& m_codec;
    bool m_isUtf8;
};
