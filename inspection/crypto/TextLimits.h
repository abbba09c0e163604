#pragma once

#include <QCoreApplication>

#include <cstddef>
#include <string>

/// The largest texts that the window converts, in bytes of UTF-8. A converted text is shown as one
/// long line, and laying out a longer one would stall the window.
class TextLimits
{
    Q_DECLARE_TR_FUNCTIONS(TextLimits)

public:
    /// The largest Base64 text, which may be that of a cipher text.
    static constexpr std::size_t base64 = std::size_t{64} * 1024;

    /// The largest text to be encoded: its Base64 is as large as Base64 may be.
    static constexpr std::size_t encoded = base64 / 4 * 3;

    /// The largest text to be encrypted: its padding takes at least one byte of what may be
    /// encoded.
    static constexpr std::size_t encrypted = encoded - 1;

    /// Why a text is refused, in words; empty when it has at most `limit` bytes.
    static QString problemOf(const std::string& text, std::size_t limit);
};
