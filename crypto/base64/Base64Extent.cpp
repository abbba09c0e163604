#include "crypto/base64/Base64Extent.h"

#include "crypto/base64/Base64Tables.h"

#include <algorithm>
#include <cstdint>

namespace base64 {

namespace {

bool isForeign(char character)
{
    return values[0][static_cast<unsigned char>(character)] == foreign;
}

} // namespace

Extent extentOf(const std::string& text)
{
    const std::size_t scanned = static_cast<std::uint32_t>(text.size()); // as Decode does
    const char* end = std::find_if(text.data(), text.data() + scanned, isForeign);
    const auto length = static_cast<std::size_t>(end - text.data());
    const bool hasIgnored = text.find_first_not_of("= \t\r\n", length) != std::string::npos;
    return {length, hasIgnored, length % 4 == 1};
}

} // namespace base64
