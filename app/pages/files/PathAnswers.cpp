#include "app/pages/files/PathAnswers.h"

#include "platform/PlatformServicesImp.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t longestPath = 4096; // what the service writes at most
constexpr std::size_t zeroedExtension = 256;

IPlatformDirectoryManager& directories()
{
    return *g_PlatformServices.directoryManager();
}

} // namespace

PathAnswers::Existence PathAnswers::existence(const QString& path)
{
    CStdStr<wchar_t> realPath;
    const int result = directories().isFileExist(path.toStdWString().c_str(), realPath);
    return {result != 0, QString::fromStdWString(realPath)};
}

DWORD PathAnswers::attributes(const QString& path)
{
    return directories().GetFileAttributesW(path.toStdWString().c_str());
}

QString PathAnswers::extension(const QString& path)
{
    const std::unique_ptr<wchar_t[]> text(
        directories().PathFindExtensionW(path.toStdWString().c_str()));
    // Behind a longer text the buffer has no terminator.
    const wchar_t* end = std::find(text.get(), text.get() + zeroedExtension, L'\0');
    return QString::fromWCharArray(text.get(), static_cast<int>(end - text.get()));
}

bool PathAnswers::isUrl(const QString& text)
{
    return directories().isURL(text.toStdWString().c_str()) != 0;
}

bool PathAnswers::isRelative(const QString& path)
{
    return directories().IsPathRelative(path.toStdWString().c_str()) != 0;
}

// The service writes no terminator: zeroes stand behind the text beforehand.
QString PathAnswers::relativePath(const QString& from, const QString& to)
{
    std::vector<wchar_t> buffer(longestPath + 1);
    directories().PathRelativePathToW(buffer.data(), from.toStdWString().c_str(), 0,
                                      to.toStdWString().c_str(), 0);
    return QString::fromWCharArray(buffer.data());
}

QString PathAnswers::temporaryFolder()
{
    std::vector<wchar_t> buffer(longestPath);
    const unsigned int length =
        directories().GetTempPathW(static_cast<unsigned int>(buffer.size()), buffer.data());
    return QString::fromWCharArray(buffer.data(), static_cast<int>(length));
}
