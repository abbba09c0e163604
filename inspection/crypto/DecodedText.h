#pragma once

#include <QString>

#include <string>

/// Bytes as a field shows them.
struct DecodedText
{
    QString text;
    /// False where the bytes are not UTF-8 or hold a zero: `text` is then their hexadecimal form.
    bool isText;
};

DecodedText decodedText(const std::string& bytes);
