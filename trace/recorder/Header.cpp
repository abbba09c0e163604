#include "trace/recorder/Header.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace recorder {

namespace {

#if defined(__x86_64__)
constexpr char architecture[] = "x86_64";
#elif defined(__aarch64__)
constexpr char architecture[] = "aarch64";
#else
#error "the binary contract is known for these two architectures alone"
#endif

const char* toolkitVersion()
{
    using Function = const char* (*)();
    const auto version = reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, "qVersion"));
    return version ? version() : "";
}

// The locale for characters, as the environment asks for it.
const char* localeName()
{
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(name);
        if (value && *value)
            return value;
    }
    return "C";
}

std::string now()
{
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    std::tm parts{};
    gmtime_r(&time.tv_sec, &parts);
    char seconds[32];
    std::strftime(seconds, sizeof seconds, "%Y-%m-%dT%H:%M:%S", &parts);
    char whole[48];
    std::snprintf(whole, sizeof whole, "%s.%03ldZ", seconds, time.tv_nsec / 1000000);
    return whole;
}

// Relative paths in the arguments of calls start from there; empty where it has been removed.
std::string workingDirectory()
{
    char path[4096];
    return getcwd(path, sizeof path) ? path : "";
}

void writeArguments(Line& line)
{
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    const std::string all{std::istreambuf_iterator<char>(file), {}};
    line.raw("[");
    for (std::size_t begin = 0; begin < all.size();) {
        const std::size_t end = all.find('\0', begin);
        line.raw(begin == 0 ? "" : ",");
        line.quoted(all.substr(begin, end - begin));
        begin = end == std::string::npos ? all.size() : end + 1;
    }
    line.raw("]");
}

void writeOptions(Line& line, const trace::RecordingOptions& options)
{
    line.raw("{\"all\":");
    line.raw(options.hasAllCallers ? "true" : "false");
    line.raw(",\"hideData\":");
    line.raw(options.hidesData ? "true" : "false");
    line.raw(",\"text\":");
    if (options.longestText)
        line.unsignedNumber(*options.longestText);
    else
        line.raw("null");
    line.raw(",\"calls\":");
    line.quoted(options.selection);
    line.raw("}");
}

void writeModule(Line& line, const Module& module)
{
    line.raw("{\"path\":");
    line.quoted(module.path);
    line.raw(",\"buildId\":");
    line.quoted(module.buildId);
    line.raw("}");
}

void writeText(Line& line, std::string_view name, std::string_view text)
{
    line.name(name);
    line.quoted(text);
}

} // namespace

void writeHeader(Line& line, const trace::RecordingOptions& options,
                 const std::vector<Module>& libraries)
{
    line.raw("{\"quaysideTrace\":1");
    writeText(line, "version", QUAYSIDE_VERSION);
    writeText(line, "qt", toolkitVersion());
    writeText(line, "architecture", architecture);
    writeText(line, "locale", localeName());
    writeText(line, "started", now());
    line.name("program");
    writeArguments(line);
    writeText(line, "cwd", workingDirectory());
    line.name("options");
    writeOptions(line, options);
    line.name("libraries");
    line.raw("[");
    for (const Module& library : libraries) {
        line.raw(&library == libraries.data() ? "" : ",");
        writeModule(line, library);
    }
    line.raw("]}\n");
}

void writeLibrary(Line& line, const Module& library)
{
    line.raw("{\"library\":");
    writeModule(line, library);
    line.raw("}\n");
}

void writeEnd(Line& line, std::uint64_t calls, std::uint64_t time)
{
    line.raw("{\"ended\":{\"calls\":");
    line.unsignedNumber(calls);
    line.raw(",\"time\":");
    line.unsignedNumber(time);
    line.raw("}}\n");
}

} // namespace recorder
