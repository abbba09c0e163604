#pragma once

#include <string>

class IPlatformServices;

/// What the library does with the services, an area each. Each function says in one line what it
/// was answered.
namespace sample {

/// Counts in the registry how often the library was started.
std::string useRegistry(IPlatformServices& services);

/// Writes an entry with one family of the profile calls and reads it with the other.
std::string useProfiles(IPlatformServices& services);

/// Looks for files by a pattern.
std::string useFiles(IPlatformServices& services);

/// Fills the font catalogue and enumerates it.
std::string useFonts(IPlatformServices& services);

/// Makes a bitmap, paints it, and reads it back.
std::string useBitmap(IPlatformServices& services);

/// Asks the user something, who is never asked.
std::string useQuestion(IPlatformServices& services);

/// Reads one of the library's own texts, in the configured language.
std::string useStrings(IPlatformServices& services);

} // namespace sample
