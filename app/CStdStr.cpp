#include "app/CStdStr.h"

#include <cstdint>
#include <functional>
#include <locale>

namespace {

// std::less orders pointers into unrelated buffers too, where < would be unspecified.
bool pointsInto(const std::wstring& text, const wchar_t* position)
{
    const std::less<const wchar_t*> before;
    const wchar_t* begin = text.c_str();
    return !before(position, begin) && !before(begin + text.size(), position);
}

// As an unsigned number: the difference of two wraps where the signed one would overflow.
std::uint32_t lowered(const std::ctype<wchar_t>& ctype, wchar_t character)
{
    // NOLINTNEXTLINE(bugprone-signed-char-misuse): the check takes wchar_t for a signed char
    return static_cast<std::uint32_t>(ctype.tolower(character));
}

} // namespace

void ssasn(std::wstring& destination, const wchar_t* source)
{
    if (!source) {
        destination.erase();
    } else if (pointsInto(destination, source)) {
        const auto start = static_cast<std::size_t>(source - destination.c_str());
        destination.substr(start).swap(destination);
    } else {
        destination.assign(source);
    }
}

template <>
int ssicmp<wchar_t>(const wchar_t* a, const wchar_t* b)
{
    const auto& ctype = std::use_facet<std::ctype<wchar_t>>(std::locale::classic());
    for (;; ++a, ++b) {
        const std::uint32_t lowerA = lowered(ctype, *a);
        const std::uint32_t lowerB = lowered(ctype, *b);
        // Only the end of a is looked for: the end of b shows as a difference.
        if (lowerA == 0 || lowerA != lowerB)
            return static_cast<std::int32_t>(lowerA - lowerB);
    }
}
