#pragma once

#include <QString>

#include <fuzzer/FuzzedDataProvider.h>

#include <string>

/// What the bytes of a fuzzer's input are turned into. Texts for a call end before the first NUL,
/// as the callee sees them.
class FuzzInput : public FuzzedDataProvider
{
public:
    using FuzzedDataProvider::FuzzedDataProvider;

    /// Bytes as they come, at most `longest`; none among them is NUL.
    std::string text(std::size_t longest = 64)
    {
        std::string bytes = ConsumeRandomLengthString(longest);
        bytes.resize(std::min(bytes.find('\0'), bytes.size()));
        return bytes;
    }

    /// Characters of UTF-8; what is none becomes U+FFFD.
    std::wstring wideText(std::size_t longest = 64)
    {
        return QString::fromStdString(text(longest)).toStdWString();
    }

    /// Units of any value, surrogates and values above Unicode's among them.
    std::wstring rawWideText(std::size_t longest = 64)
    {
        std::wstring units;
        while (units.size() < longest && remaining_bytes() > 0 && ConsumeBool())
            units += wchar_t(ConsumeIntegral<unsigned int>() | 1U);
        return units;
    }

    /// Null now and then, as careless callers pass it; otherwise `text`.
    template <typename CharT>
    const CharT* orNull(const std::basic_string<CharT>& text)
    {
        return ConsumeIntegralInRange(0, 15) == 15 ? nullptr : text.c_str();
    }
};
