// Searches, the existence test and the URL test of the directory manager.

#include "bench/Ratio.h"
#include "platform/PlatformDirectoryManagerImp.h"

#include <QRegExpValidator>
#include <QTemporaryDir>

#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void require(bool condition)
{
    if (!condition)
        throw std::runtime_error("not what was to be measured");
}

/// A folder of `count` files, made once for the whole run.
const std::string& folderOf(int count)
{
    struct Folder
    {
        QTemporaryDir directory;
        std::string path = directory.path().toStdString() + '/';
    };
    static std::map<int, Folder> folders;
    const auto [folder, isNew] = folders.try_emplace(count);
    for (int i = 0; isNew && i < count; ++i) {
        const std::string name = folder->second.path + "Report " + std::to_string(i) + ".txt";
        const int descriptor = open(name.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        require(descriptor >= 0 && close(descriptor) == 0);
    }
    return folder->second.path;
}

std::wstring wide(const std::string& text)
{
    return QString::fromStdString(text).toStdWString();
}

/// Calls `visit` with the directory's descriptor and every name in it.
template <typename Visit>
int readFolder(const std::string& path, Visit visit)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> directory(opendir(path.c_str()), closedir);
    int visited = 0;
    while (const dirent* entry = readdir(directory.get())) {
        visit(dirfd(directory.get()), entry->d_name);
        ++visited;
    }
    return visited;
}

void findAll(const std::string& path, const wchar_t* name, int expected)
{
    PlatformDirectoryManagerImp manager;
    _WIN32_FIND_DATAW data{};
    void* search = manager.findFirstFile((wide(path) + name).c_str(), &data);
    int found = 1;
    while (manager.findNextFile(search, &data) == 1)
        ++found;
    require(manager.findClose(search) == 1 && found == expected);
}

void findAgainstReaddir(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const std::string& path = folderOf(count);
    compare(
        state, [&] { findAll(path, L"*", count); },
        [&] { require(readFolder(path, [](int, const char*) {}) == count + 2); });
}

void statEntry(int directory, const char* name)
{
    struct stat status;
    require(fstatat(directory, name, &status, 0) == 0);
}

void findAgainstReaddirAndStat(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const std::string& path = folderOf(count);
    compare(
        state, [&] { findAll(path, L"*", count); },
        [&] { require(readFolder(path, statEntry) == count + 2); });
}

void filteredFindAgainstReaddirAndStat(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const std::string& path = folderOf(count);
    compare(
        state, [&] { findAll(path, L"report*.TXT", count); },
        [&] { require(readFolder(path, statEntry) == count + 2); });
}

void findAgainstFilesystem(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const std::string& path = folderOf(count);
    compare(
        state, [&] { findAll(path, L"*", count); },
        [&] {
            int found = 0;
            for (const auto& entry : std::filesystem::directory_iterator(path))
                found += entry.is_directory() ? 0 : 1;
            require(found == count);
        });
}

void existsAgainstReaddir(benchmark::State& state)
{
    const auto count = static_cast<int>(state.range(0));
    const std::string& path = folderOf(count);
    const std::string name = "REPORT " + std::to_string(count / 2) + ".TXT";
    const std::wstring asked = wide(path + name);
    PlatformDirectoryManagerImp manager;
    CStdStr<wchar_t> real;
    compare(
        state, [&] { require(manager.isFileExist(asked.c_str(), real) == 1); },
        [&] {
            int found = 0;
            readFolder(path, [&](int, const char* entry) {
                found += strcasecmp(entry, name.c_str()) == 0 ? 1 : 0;
            });
            require(found == 1);
        });
}

// The time is that of a thousand tests: microseconds here are nanoseconds for one.
void thousandUrlsAgainstValidator(benchmark::State& state)
{
    constexpr int repetitions = 1000;
    const std::wstring url = L"https://www.example.org/path/to/page.html?query=1&other=2#part";
    const QRegExpValidator validator(QRegExp(
        QStringLiteral("(https?|ftp|file)://[-A-Za-z0-9+&@#/%?=~_|!:,.;]+[-A-Za-z0-9+&@#/%=~_|]")));
    PlatformDirectoryManagerImp manager;
    compare(
        state,
        [&] {
            for (int i = 0; i < repetitions; ++i)
                require(manager.isURL(url.c_str()) == 1);
        },
        [&] {
            for (int i = 0; i < repetitions; ++i) {
                QString input = QString::fromStdWString(url);
                int position = 0;
                require(validator.validate(input, position) == QValidator::Acceptable);
            }
        });
}

// Long enough for the shortest runs to be undisturbed ones.
void entries(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);
}

BENCHMARK(findAgainstReaddir)->Arg(100000)->Apply(entries);
BENCHMARK(findAgainstReaddirAndStat)->Arg(100000)->Apply(entries);
BENCHMARK(filteredFindAgainstReaddirAndStat)->Arg(100000)->Apply(entries);
BENCHMARK(findAgainstFilesystem)->Arg(100000)->Apply(entries);
BENCHMARK(existsAgainstReaddir)->Arg(10000)->Apply(entries);
BENCHMARK(thousandUrlsAgainstValidator)->Unit(benchmark::kMicrosecond)->UseManualTime();

} // namespace
