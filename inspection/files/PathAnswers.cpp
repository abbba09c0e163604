#include "inspection/files/PathAnswers.h"

#include "platform/IPlatformServices.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr std::size_t longestPath = 4096; // what the service writes at most
constexpr std::size_t zeroedExtension = 256;
constexpr std::size_t zeroedPath = 256;

} // namespace

PathAnswers::Existence PathAnswers::existence(const QString& path) const
{
    CStdStr<wchar_t> realPath;
    const int result = m_service.isFileExist(path.toStdWString().c_str(), realPath);
    return {result != 0, QString::fromStdWString(realPath)};
}

DWORD PathAnswers::attributes(const QString& path) const
{
    return m_service.GetFileAttributesW(path.toStdWString().c_str());
}

QString PathAnswers::extension(const QString& path) const
{
    const std::unique_ptr<wchar_t[]> text(
        m_service.PathFindExtensionW(path.toStdWString().c_str()));
    // Behind a longer text the buffer has no terminator.
    const wchar_t* end = std::find(text.get(), text.get() + zeroedExtension, L'\0');
    return QString::fromWCharArray(text.get(), static_cast<int>(end - text.get()));
}

bool PathAnswers::isUrl(const QString& text) const
{
    return m_service.isURL(text.toStdWString().c_str()) != 0;
}

// The service writes no terminator: zeroes stand behind the text beforehand.
QString PathAnswers::relativePath(const QString& from, const QString& to) const
{
    std::vector<wchar_t> buffer(longestPath + 1);
    m_service.PathRelativePathToW(buffer.data(), from.toStdWString().c_str(), 0,
                                  to.toStdWString().c_str(), 0);
    return QString::fromWCharArray(buffer.data());
}

QString PathAnswers::temporaryFolder() const
{
    std::vector<wchar_t> buffer(longestPath);
    const unsigned int length =
        m_service.GetTempPathW(static_cast<unsigned int>(buffer.size()), buffer.data());
    return QString::fromWCharArray(buffer.data(), static_cast<int>(length));
}

// The service zeroes the beginning of the buffer, and writes one character more than it finds.
QString PathAnswers::withSeparator(const QString& path) const
{
    const std::wstring text = path.toStdWString();
    std::vector<wchar_t> buffer(std::max(zeroedPath, text.size() + 2));
    std::copy(text.begin(), text.end(), buffer.begin());
    return QString::fromWCharArray(m_service.AddBackslash(buffer.data()));
}
