#pragma once

#include <string>

/// The 64 characters of URL-safe Base64 (RFC 4648, section 5): character i stands for the value i.
/// Constructed late during start-up and only read afterwards; the codec does not need it.
extern const std::string base64_chars;

/// URL-safe Base64. Strings are containers of bytes; nothing fails, and any thread may call.
class Base64Encoder
{
public:
    /// The text of `length` bytes, padded with "=" to a multiple of four characters. `bytes` may be
    /// null where `length` is 0.
    static std::string Encode(const unsigned char* bytes, unsigned int length);

    /// The bytes of `text` up to the first character that is not of the alphabet ("=", "+", "/",
    /// blanks and line breaks included); what follows is ignored. Padding is not required; a single
    /// character over yields nothing. Only the low 32 bits of the text's size count.
    static std::string Decode(const std::string& text);

    /// `text` with "-" for "+", "_" for "/" and without every "=".
    static std::string UrlEncode(const std::string& text);
};
