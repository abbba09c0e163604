#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"
#include "platform/PlatformDirectoryManagerImp.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

// A working directory with something in it to be found.
class Tree
{
public:
    Tree()
    {
        QDir::setCurrent(m_folder.path());
        QDir().mkpath("Folder/inner");
        for (const char* name :
             {"a.txt", "A.TXT", ".hidden", "Folder/b.ini", "no extension", "[x]"})
            expectThat(QFile(name).open(QIODevice::WriteOnly), "the tree can be made");
    }
    ~Tree() { QDir::setCurrent("/"); }

private:
    QTemporaryDir m_folder;
};

bool isUrlPlainly(const std::wstring& text)
{
    const std::wstring lastSigns =
        L"-ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+&@#/%=~_|";
    const std::wstring signs = lastSigns + L"?!:,.;";
    for (const std::wstring scheme : {L"http://", L"https://", L"ftp://", L"file://"}) {
        if (text.compare(0, scheme.size(), scheme) == 0 && text.size() >= scheme.size() + 2 &&
            text.find_first_not_of(signs, scheme.size()) == std::wstring::npos &&
            lastSigns.find(text.back()) != std::wstring::npos)
            return true;
    }
    return false;
}

void expectBackslash(PlatformDirectoryManagerImp& manager, const std::wstring& path)
{
    std::wstring expected = path;
    std::replace(expected.begin(), expected.end(), L'\\', L'/');
    if (expected.empty() || expected.back() != L'/')
        expected += L'/';
    std::vector<wchar_t> buffer(std::max<std::size_t>(256, path.size() + 2));
    std::copy(path.begin(), path.end(), buffer.begin());
    expectThat(manager.AddBackslash(buffer.data()) == buffer.data(), "the buffer comes back");
    expectThat(std::equal(expected.begin(), expected.end(), buffer.begin()), "with its slash");
}

void expectExtension(PlatformDirectoryManagerImp& manager, const std::wstring& path)
{
    const std::wstring suffix = QFileInfo(QString::fromStdWString(path)).suffix().toStdWString();
    const std::wstring expected = suffix.empty() ? L"" : L'.' + suffix;
    const std::unique_ptr<wchar_t[]> extension(manager.PathFindExtensionW(path.c_str()));
    expectThat(
        std::equal(expected.begin(),
                   expected.begin() +
                       std::min<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(expected.size()), 1024),
                   extension.get()),
        "the text from the last dot on");
}

void expectRelativePath(PlatformDirectoryManagerImp& manager, const std::wstring& from,
                        const std::wstring& to)
{
    std::vector<wchar_t> relative(4097, L'\0');
    expectThat(manager.PathRelativePathToW(relative.data(), from.c_str(), 0, to.c_str(), 0) == 1,
               "a relative path is always found");
    const bool isBelow = to.find(from) != std::wstring::npos;
    expectThat(!isBelow || (relative[0] == L'.' && relative[1] == L'/'), "below: with ./ in front");
}

void expectTempPath(PlatformDirectoryManagerImp& manager, unsigned int length)
{
    std::vector<wchar_t> buffer(length == 0 ? 4096 : length, L'#');
    const unsigned int count = manager.GetTempPathW(length, buffer.data());
    expectThat(length == 0 || count < length, "only what fits with its terminator");
    expectThat(count == 0 || buffer[count - 1] == L'/', "ends with a slash");
}

void expectSearchToEnd(PlatformDirectoryManagerImp& manager, const std::wstring& pattern)
{
    auto data = std::make_unique<_WIN32_FIND_DATAW>();
    void* search = manager.findFirstFile(pattern.c_str(), data.get());
    if (search == INVALID_HANDLE_VALUE)
        return;
    for (int i = 0; i < 100 && manager.findNextFile(search, data.get()) == 1; ++i) {
    }
    expectThat(manager.findClose(search) == 1, "a search is closed");
}

// Paths of the tree's own: hidden, a file becomes another one.
void setAttributes(PlatformDirectoryManagerImp& manager, const std::wstring& path,
                   unsigned int attributes)
{
    const bool isWithin = path.find(L'/') == std::wstring::npos && path != L"." && path != L"..";
    manager.SetFileAttributesW(path.c_str(), isWithin ? attributes : attributes & ~2U);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Tree tree;
    FuzzInput input(data, size);
    PlatformDirectoryManagerImp manager;
    const auto number = input.ConsumeIntegralInRange(0U, 300U);
    const std::wstring first = input.wideText(300);
    const std::wstring second = input.ConsumeBool() ? first + input.wideText(8) : input.wideText();
    expectThat(manager.isURL(second.c_str()) == (isUrlPlainly(second) ? 1 : 0), "a URL or none");
    expectBackslash(manager, first);
    expectExtension(manager, first);
    expectRelativePath(manager, first, second);
    expectTempPath(manager, number);
    expectThat(manager.IsPathRelative(first.c_str()) ==
                   (!first.empty() && first[0] != L'/' && first[0] != L':'),
               "relative unless a slash or a colon is in front");
    CStdStr<wchar_t> real;
    if (manager.isFileExist(second.c_str(), real) == 1)
        expectThat(QFileInfo::exists(QString::fromStdWString(real)), "what is found exists");
    expectSearchToEnd(manager, second);
    manager.GetFileAttributesW(second.c_str());
    setAttributes(manager, second, number);
    return 0;
}
