#include "platform/files/DirectoryListing.h"

#include "platform/files/FileNameDecoder.h"
#include "platform/files/NameOrder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QVarLengthArray>

#include <cstring>
#include <dirent.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <utility>

namespace {

// The filters by which QDir sorts everything else out.
QDir::Filters filtersOf(DirectoryListing::Hidden hidden)
{
    const QDir::Filters filters = QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot;
    return hidden == DirectoryListing::WithHidden ? filters | QDir::Hidden : filters;
}

// Qt's resources and search paths have a colon before the first separator.
bool isOnFileSystem(const QString& directory)
{
    const int colon = directory.indexOf(u':');
    const int separator = directory.indexOf(u'/');
    return colon < 0 || (separator >= 0 && separator < colon);
}

// A name filter, compiled as QDirIterator compiles it.
class NameFilter
{
public:
    explicit NameFilter(const QString& wildcards)
    {
        if (wildcards == u"*")
            return;
        m_expression.emplace(QRegularExpression::wildcardToRegularExpression(wildcards),
                             QRegularExpression::CaseInsensitiveOption);
    }

    bool isValid() const { return !m_expression || m_expression->isValid(); }

    bool matches(const QString& name) const
    {
        return !m_expression || m_expression->match(name).hasMatch();
    }

private:
    std::optional<QRegularExpression> m_expression; // none: everything matches
};

// Reads a directory of the file system entry by entry.
class DirectoryReader
{
public:
    explicit DirectoryReader(const QByteArray& path)
        : m_path(path), m_directory(opendir(path.constData()), closedir)
    {
    }

    // The next entry that is a file or a folder, or a link to anything that exists; null: no more.
    const dirent* next() const
    {
        while (const dirent* entry = m_directory ? readdir(m_directory.get()) : nullptr) {
            if (isListed(*entry))
                return entry;
        }
        return nullptr;
    }

private:
    bool isListed(const dirent& entry) const
    {
        if (std::strcmp(entry.d_name, ".") == 0 || std::strcmp(entry.d_name, "..") == 0)
            return false;
        switch (entry.d_type) {
        case DT_REG:
        case DT_DIR: return true;
        case DT_LNK:
        case DT_UNKNOWN: return isListed(m_path + entry.d_name);
        default: return false;
        }
    }

    static bool isListed(const QByteArray& path)
    {
        struct stat status;
        if (lstat(path.constData(), &status) != 0)
            return false;
        if (S_ISLNK(status.st_mode))
            return stat(path.constData(), &status) == 0;
        return S_ISREG(status.st_mode) || S_ISDIR(status.st_mode);
    }

    QByteArray m_path; // with its trailing separator
    std::unique_ptr<DIR, int (*)(DIR*)> m_directory;
};

} // namespace

DirectoryListing::DirectoryListing(const QString& directory, Hidden hidden)
    : m_directory(QDir(directory).path()), m_hidden(hidden)
{
    if (!m_directory.endsWith(u'/'))
        m_directory += u'/';
    if (isOnFileSystem(m_directory))
        m_nativeDirectory = QFile::encodeName(m_directory);
}

QStringList DirectoryListing::names(const QString& filter) const
{
    const NameFilter nameFilter(filter);
    if (!nameFilter.isValid())
        return {};
    const FileNameDecoder decoder;
    // What QDir takes for text in encodings other than UTF-8 differs from one to the next.
    if (m_nativeDirectory.isEmpty() || !decoder.isUtf8())
        return QDir(m_directory).entryList({filter}, filtersOf(m_hidden), QDir::NoSort);
    const DirectoryReader reader(m_nativeDirectory);
    NameOrder found;
    QString name;
    while (const dirent* entry = reader.next()) {
        if (m_hidden == WithoutHidden && entry->d_name[0] == '.')
            continue;
        if (decoder.decode(entry->d_name, name) == FileNameDecoder::Result::Text &&
            nameFilter.matches(name))
            found.add(std::move(name));
    }
    return found.take();
}

bool DirectoryListing::isFolder(const QString& name) const
{
    if (m_nativeDirectory.isEmpty())
        return QDir(m_directory + name).exists();
    const QByteArray nativeName = QFile::encodeName(name);
    QVarLengthArray<char, 512> path;
    path.append(m_nativeDirectory.constData(), m_nativeDirectory.size());
    path.append(nativeName.constData(), nativeName.size() + 1);
    struct stat status;
    return stat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

QString DirectoryListing::absolutePath(const QString& name) const
{
    return QFileInfo(m_directory + name).absoluteFilePath();
}
