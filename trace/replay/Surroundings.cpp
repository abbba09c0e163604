#include "trace/replay/Surroundings.h"

#include <algorithm>
#include <iterator>

namespace replay::Surroundings {

namespace {

struct Row
{
    std::string_view operation;
    std::string_view part; ///< or the beginning of its name, with a "*" behind it
    Comparison comparison;
};

constexpr Row rows[] = {
    // The user has the mouse and the keyboard. Whether Return and Space are down is told to the
    // service by the application, whose own calls are mostly not recorded.
    {"GetCursorPos", "point*", Comparison::NotAtAll},
    {"getKeyState", result, Comparison::NotAtAll},
    {"getAsyncKeyState", result, Comparison::NotAtAll},
    // The application's windows and its cursor, neither of which a replay has.
    {"FindWindowW", result, Comparison::NotAtAll},
    {"ScreenToClient", "point*", Comparison::NotAtAll},
    {"GetCursor", result, Comparison::NotAtAll},
    {"SetCursor", result, Comparison::NotAtAll},
    // The display: how many monitors there are, where they stand and how large they are.
    {"GetSystemMetrics", result, Comparison::IsNot0},
    {"MonitorFromPoint", result, Comparison::NotAtAll},
    {"GetMonitorInfoW", "info*", Comparison::NotAtAll},
    // The folder for temporary files is the machine's. Whether it fits is a matter of its length.
    {"GetTempPathW", result, Comparison::NotAtAll},
    {"GetTempPathW", "buffer", Comparison::NotAtAll},
    // The clock of the file system.
    {"findFirstFile", "data.ft*", Comparison::NotAtAll},
    {"findNextFile", "data.ft*", Comparison::NotAtAll},
    // A new image holds what the memory held, and callers draw into it without the services.
    {"GetBitmapBits", "buffer", Comparison::Length},
    {"GetCursorBits", "buffer", Comparison::Length},
};

struct PathRow
{
    std::string_view operation;
    std::string_view parameter;
    bool isWriting;
};

constexpr PathRow paths[] = {
    {"findFirstFile", "pattern", false},          {"isFileExist", "path", false},
    {"GetFileAttributesW", "path", false},        {"SetFileAttributesW", "path", true},
    {"GetPrivateProfileStringW", "file", false},  {"GetPrivateProfileStringA", "file", false},
    {"GetPrivateProfileIntW", "file", false},     {"GetPrivateProfileSectionW", "file", false},
    {"WritePrivateProfileStringW", "file", true}, {"WritePrivateProfileStringA", "file", true},
};

// What makes handles is not among them: a handle that is missing is known to be.
constexpr std::string_view changing[] = {
    "RegSetValueExW",
    "RegCreateKeyExW",
    "RegCreateKeyW",
    "RegDeleteKeyW",
    "RegDeleteKeyExW",
    "RegDeleteValueW",
    "addLogFont",
    "WritePrivateProfileStringW",
    "WritePrivateProfileStringA",
    "setKeyPressed",
    "SetFileAttributesW",
};

bool matches(std::string_view pattern, std::string_view part)
{
    if (pattern.empty() || pattern.back() != '*')
        return pattern == part;
    pattern.remove_suffix(1);
    return part.substr(0, pattern.size()) == pattern;
}

} // namespace

Comparison comparison(std::string_view operation, std::string_view part)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows), [&](const Row& row) {
        return row.operation == operation && matches(row.part, part);
    });
    return found == std::end(rows) ? Comparison::ByRole : found->comparison;
}

bool isPath(const trace::Operation& operation, const trace::Parameter& parameter)
{
    return std::any_of(std::begin(paths), std::end(paths), [&](const PathRow& row) {
        return row.operation == operation.name && row.parameter == parameter.name;
    });
}

bool isChanging(const trace::Operation& operation)
{
    return std::find(std::begin(changing), std::end(changing), operation.name) !=
           std::end(changing);
}

bool isWriting(const trace::Operation& operation)
{
    return std::any_of(std::begin(paths), std::end(paths), [&](const PathRow& row) {
        return row.operation == operation.name && row.isWriting;
    });
}

} // namespace replay::Surroundings
