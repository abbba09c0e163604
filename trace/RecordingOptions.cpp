#include "trace/RecordingOptions.h"

#include "trace/Operations.h"

#include <charconv>
#include <cstdlib>

namespace trace {

namespace {

std::string environmentText(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : std::string();
}

std::optional<std::size_t> environmentNumber(const char* name)
{
    const std::string text = environmentText(name);
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

// Calls `visit` with each piece between separators that is not empty.
template <typename Visit>
void forEachPiece(std::string_view list, std::string_view separators, Visit visit)
{
    while (!list.empty()) {
        const std::size_t end = list.find_first_of(separators);
        if (end != 0)
            visit(list.substr(0, end));
        if (end == std::string_view::npos)
            return;
        list.remove_prefix(end + 1);
    }
}

} // namespace

CallSelection::CallSelection()
{
    m_slots.set();
}

std::optional<CallSelection> CallSelection::parse(std::string_view list, std::string& unknown)
{
    CallSelection selection;
    if (!list.empty() && list.front() != '!')
        selection.m_slots.reset();
    unknown.clear();
    forEachPiece(list, ",", [&](std::string_view piece) {
        const bool isWanted = piece.front() != '!';
        if (!selection.set(piece.substr(isWanted ? 0 : 1), isWanted) && unknown.empty())
            unknown = piece;
    });
    if (!unknown.empty())
        return std::nullopt;
    return selection;
}

bool CallSelection::set(std::string_view name, bool isWanted)
{
    bool isKnown = false;
    for (std::size_t interface = 0; interface < interfaceCount; ++interface) {
        const Manager& row = managers()[interface];
        for (std::size_t slot = 0; slot < row.operations.size(); ++slot) {
            if (name != row.name && name != row.operations[slot].name)
                continue;
            m_slots[interface * slotLimit + slot] = isWanted;
            isKnown = true;
        }
    }
    return isKnown;
}

RecordingOptions optionsFromEnvironment()
{
    RecordingOptions options;
    options.file = environmentText(variable::file);
    options.hasAllCallers = !environmentText(variable::all).empty();
    options.hidesData = !environmentText(variable::hide).empty();
    options.longestText = environmentNumber(variable::text);
    options.selection = environmentText(variable::calls);
    return options;
}

void clearRecordingEnvironment(std::string_view libraryName)
{
    for (const char* name :
         {variable::file, variable::all, variable::hide, variable::text, variable::calls})
        unsetenv(name);
    std::string others;
    const std::string preloaded = environmentText(variable::preload);
    forEachPiece(preloaded, ": ", [&](std::string_view path) {
        const std::size_t slash = path.rfind('/');
        if (path.substr(slash == std::string_view::npos ? 0 : slash + 1) != libraryName)
            others.append(others.empty() ? "" : ":").append(path);
    });
    if (others.empty())
        unsetenv(variable::preload);
    else
        setenv(variable::preload, others.c_str(), 1);
}

} // namespace trace
