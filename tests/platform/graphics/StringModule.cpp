// A module with string resources, as a host library would be: a text of as many characters as the
// identifier says, and a few special ones.

#include "tests/platform/graphics/StringModule.h"

extern "C" [[gnu::visibility("default")]] const wchar_t* loadstring(unsigned int id)
{
    static constexpr wchar_t digits[] = L"abcdefghijklmnopqrst";
    constexpr unsigned int longest = sizeof digits / sizeof *digits - 1;
    if (id == nonBmpText)
        return L"\U0001F600\u4E2D";
    return id <= longest ? digits + longest - id : nullptr;
}
