#include "platform/PlatformDirectoryManagerImp.h"

#include "platform/files/DirectoryListing.h"
#include "platform/files/LiveSearches.h"
#include "platform/files/UrlPattern.h"

#include <QDateTime>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <cwchar>
#include <memory>

namespace {

constexpr QChar separator = u'/';

// At most MAX_PATH characters, and zeros behind a shorter name.
void writeName(_WIN32_FIND_DATAW* data, const QString& name)
{
    if (name.size() > MAX_PATH) { // only among Qt's resources and search paths
        std::wcsncpy(data->cFileName, name.toStdWString().c_str(), MAX_PATH);
        return;
    }
    const int length = name.toWCharArray(data->cFileName);
    std::fill(data->cFileName + length, std::end(data->cFileName), L'\0');
}

void writeEntry(_WIN32_FIND_DATAW* data, const QString& name, bool isDirectory)
{
    writeName(data, name);
    data->dwFileAttributes = isDirectory ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
}

// Intended: seconds since 1970 in the low word, where 100-nanosecond units since 1601 are usual.
FILETIME fileTime(const QDateTime& time)
{
    return {time.toTime_t(), 0};
}

void writeFileDetails(_WIN32_FIND_DATAW* data, const QFileInfo& file)
{
    const QDateTime birth = file.birthTime();
    data->ftCreationTime = fileTime(birth.isValid() ? birth : file.metadataChangeTime());
    data->ftLastAccessTime = fileTime(file.lastRead());
    data->ftLastWriteTime = fileTime(file.lastModified());
    const auto size = static_cast<quint64>(file.size());
    data->nFileSizeHigh = static_cast<DWORD>(size >> 32U);
    data->nFileSizeLow = static_cast<DWORD>(size & 0xFFFFFFFFU);
}

void writeFirst(_WIN32_FIND_DATAW* data, const QString& name, const QFileInfo& info)
{
    writeEntry(data, name, info.isDir());
    if (info.isFile())
        writeFileDetails(data, info);
}

// The names lie in memory as the directory gave them, and are visited in another order: the next
// one is on its way into the cache while the system is asked about this one.
void prefetchNext(FileSearch& search)
{
    if (search.index + 1 < search.names.size())
        __builtin_prefetch(search.names[search.index + 1].data_ptr());
}

void assign(CStdStr<wchar_t>& destination, const QString& text)
{
    ssasn(destination, text.toStdWString().c_str());
}

// The case-insensitive half of the existence test: where the path is split.
struct SplitPath
{
    QString path; // without the trailing separator
    bool hadTrailingSeparator;
    int nameStart; // 0: there is no split
};

SplitPath splitPath(const QString& path)
{
    const int last = path.lastIndexOf(separator);
    if (last < 0 || last != path.size() - 1)
        return {path, false, last + 1};
    // Intended: behind a trailing separator, what is searched for is the character whose code is
    // the separator's index.
    const uint code = static_cast<uint>(last);
    const QString character = QString::fromUcs4(&code, 1);
    const QString shortened = path.left(last);
    const int split = shortened.lastIndexOf(character);
    const int nameStart = split < 0 ? 0 : split + character.size();
    return {shortened, true, nameStart == shortened.size() ? 0 : nameStart};
}

// Intended: a name with an extension is looked for among all entries of that extension; another
// one is a filter by itself, wildcards and all.
QStringList candidates(const DirectoryListing& listing, const QString& name)
{
    const int dot = name.lastIndexOf(u'.');
    return listing.names(dot < 0 ? name : u'*' + name.mid(dot));
}

bool equalIgnoringCase(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The absolute path, as it is on disk, of the entry that `path` or its `name` means; empty: none.
QString findIgnoringCase(const QString& directory, const QString& name, const QString& path)
{
    const DirectoryListing listing(directory, DirectoryListing::WithoutHidden);
    const QStringList entries = candidates(listing, name);
    for (const QString& entry : entries) {
        if (equalIgnoringCase(entry, name))
            return listing.absolutePath(entry);
        // The first test only spares the second one: an absolute path ends with the entry's name.
        if (path.endsWith(entry, Qt::CaseInsensitive) &&
            equalIgnoringCase(listing.absolutePath(entry), path))
            return listing.absolutePath(entry);
    }
    return {};
}

} // namespace

void* PlatformDirectoryManagerImp::findFirstFile(const wchar_t* pattern, _WIN32_FIND_DATAW* data)
{
    if (!pattern || !data)
        return INVALID_HANDLE_VALUE;
    const QString path = QString::fromWCharArray(pattern);
    const int split = path.lastIndexOf(separator);
    if (split < 0)
        return INVALID_HANDLE_VALUE;
    const QString folder = path.left(split + 1);
    const QString name = path.mid(split + 1);
    const QDir directory(folder);
    const DirectoryListing listing(folder, DirectoryListing::WithHidden);
    // A name that exists as it stands may hold wildcard characters, and needs no listing.
    const bool isFile = QFileInfo(directory, name).isFile();
    const QStringList names = isFile ? QStringList(name) : listing.names(name);
    if (names.isEmpty())
        return INVALID_HANDLE_VALUE;
    writeFirst(data, names.first(), QFileInfo(directory, names.first()));
    return LiveSearches::ofProcess().start({names, 0, listing});
}

int PlatformDirectoryManagerImp::findNextFile(void* search, _WIN32_FIND_DATAW* data)
{
    FileSearch* found = LiveSearches::ofProcess().find(search);
    if (!found || !data || found->index + 1 >= found->names.size())
        return 0;
    const QString& name = found->names.at(++found->index);
    prefetchNext(*found);
    // Intended: size and times keep what they held.
    writeEntry(data, name, found->directory.isFolder(name));
    return 1;
}

int PlatformDirectoryManagerImp::findClose(void* search)
{
    return LiveSearches::ofProcess().end(search) ? 1 : 0;
}

int PlatformDirectoryManagerImp::isFileExist(const wchar_t* path, CStdStr<wchar_t>& realPath)
{
    if (!path)
        return 0;
    const QString given = QString::fromWCharArray(path);
    ssasn(realPath, path); // from here on `path` may dangle
    if (QFileInfo::exists(given)) {
        assign(realPath, QFileInfo(given).absoluteFilePath());
        return 1;
    }
    const SplitPath parts = splitPath(given);
    if (parts.nameStart == 0)
        return 0;
    const QString found = findIgnoringCase(parts.path.left(parts.nameStart),
                                           parts.path.mid(parts.nameStart), parts.path);
    if (found.isEmpty())
        return 0;
    assign(realPath, parts.hadTrailingSeparator ? found + separator : found);
    return 1;
}

int PlatformDirectoryManagerImp::isURL(const wchar_t* text)
{
    return text && matchesUrlPattern(QString::fromWCharArray(text)) ? 1 : 0;
}

wchar_t* PlatformDirectoryManagerImp::AddBackslash(wchar_t* path)
{
    if (!path)
        return nullptr;
    constexpr std::size_t zeroed = 256;
    QString text = QString::fromWCharArray(path).replace(u'\\', separator);
    if (!text.endsWith(separator))
        text += separator;
    const std::wstring result = text.toStdWString();
    // Intended: the zeroing supplies the terminator, and only of texts shorter than that.
    std::fill_n(path, zeroed, L'\0');
    std::copy(result.begin(), result.end(), path);
    return path;
}

int PlatformDirectoryManagerImp::SHGetFolderPath(HWND /*owner*/, int /*folder*/, void* /*token*/,
                                                 unsigned int /*flags*/, wchar_t* /*path*/)
{
    return 0;
}

int PlatformDirectoryManagerImp::PathRelativePathToW(wchar_t* relative, const wchar_t* from,
                                                     unsigned int /*fromAttributes*/,
                                                     const wchar_t* to,
                                                     unsigned int /*toAttributes*/)
{
    if (!relative || !from || !to)
        return 0;
    constexpr std::size_t longest = 4096;
    const QString start = QString::fromWCharArray(from);
    const QString target = QString::fromWCharArray(to);
    QString path;
    if (start != target)
        path = QDir(start).relativeFilePath(target);
    // Intended: a test of the text, not of the directories that it names.
    if (target.contains(start))
        path.prepend(QStringLiteral("./"));
    const std::wstring result = path.toStdWString();
    // Intended: no terminator.
    std::copy_n(result.begin(), std::min(result.size(), longest), relative);
    return 1;
}

unsigned int PlatformDirectoryManagerImp::GetTempPathW(unsigned int length, wchar_t* buffer)
{
    QString path = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    if (!buffer || path.isEmpty())
        return 0;
    if (!path.endsWith(QDir::separator()))
        path += QDir::separator();
    const std::wstring result = path.toStdWString();
    // Intended: a length of 0 wraps round to the largest one, and there is no terminator.
    if (length - 1U < result.size())
        return 0;
    std::copy(result.begin(), result.end(), buffer);
    return static_cast<unsigned int>(result.size());
}

unsigned int PlatformDirectoryManagerImp::GetFileAttributesW(const wchar_t* path)
{
    if (!path)
        return INVALID_FILE_ATTRIBUTES;
    const QFileInfo info(QString::fromWCharArray(path));
    // Intended: "normal" goes together with "directory", and is also said of what is missing.
    unsigned int attributes = FILE_ATTRIBUTE_NORMAL;
    if (info.isDir())
        attributes |= FILE_ATTRIBUTE_DIRECTORY;
    if (info.isReadable() && !info.isWritable())
        attributes |= FILE_ATTRIBUTE_READONLY;
    return attributes;
}

int PlatformDirectoryManagerImp::SetFileAttributesW(const wchar_t* path, unsigned int attributes)
{
    if (!path)
        return 0;
    constexpr QFile::Permissions readableByAll =
        QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther;
    const QString name = QString::fromWCharArray(path);
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        // Intended: a test in place of a change.
        const QFileInfo info(name);
        if (info.isDir() || !info.permission(readableByAll))
            return 0;
    }
    // Intended: the dot goes in front of the whole path.
    if ((attributes & FILE_ATTRIBUTE_HIDDEN) != 0)
        return !name.isEmpty() && QFile::rename(name, u'.' + name) ? 1 : 0;
    return 1;
}

int PlatformDirectoryManagerImp::IsPathRelative(const wchar_t* path)
{
    return path && *path && QDir::isRelativePath(QString::fromWCharArray(path)) ? 1 : 0;
}

wchar_t* PlatformDirectoryManagerImp::PathFindExtensionW(const wchar_t* path)
{
    if (!path)
        return nullptr;
    constexpr std::size_t capacity = 1024;
    constexpr std::size_t zeroed = 256;
    const QString suffix = QFileInfo(QString::fromWCharArray(path)).suffix();
    const std::wstring extension =
        suffix.isEmpty() ? std::wstring() : (u'.' + suffix).toStdWString();
    auto buffer = std::unique_ptr<wchar_t[]>(new wchar_t[capacity]);
    // Intended: the zeroing supplies the terminator, and only of texts shorter than that.
    std::fill_n(buffer.get(), zeroed, L'\0');
    std::copy_n(extension.begin(), std::min(extension.size(), capacity), buffer.get());
    return buffer.release();
}
