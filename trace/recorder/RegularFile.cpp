#include "trace/recorder/RegularFile.h"

#include "platform/WindowsTypes.h"
#include "trace/recorder/Memory.h"
#include "trace/recorder/Utf8.h"

#include <string>
#include <sys/stat.h>
#include <vector>

namespace recorder {

namespace {

std::string utf8Text(std::uint64_t address, std::size_t limit)
{
    std::vector<wchar_t> copied;
    const auto text = memory::text(reinterpret_cast<const wchar_t*>(address), limit, copied);
    std::string result;
    for (std::size_t i = 0; i < text.length; ++i)
        utf8::append(result, static_cast<std::uint32_t>(text.units[i]) & 0x1FFFFFU);
    return result;
}

} // namespace

bool isRegularFile(std::uint64_t pattern, std::uint64_t name)
{
    constexpr std::size_t longest = 65536;
    const std::string path = utf8Text(pattern, longest);
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    struct stat status = {};
    return stat((folder + utf8Text(name, MAX_PATH)).c_str(), &status) == 0 &&
           S_ISREG(status.st_mode);
}

} // namespace recorder
