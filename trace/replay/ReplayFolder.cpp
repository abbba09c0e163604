#include "trace/replay/ReplayFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace replay {

namespace {

bool isAbsolute(const QString& path)
{
    return path.startsWith(QLatin1Char('/'));
}

// Without "..", which would lead out of the folder; what is above the root is the root.
QString withoutParents(const QString& path)
{
    QStringList names;
    const QStringList given = path.split(QLatin1Char('/'));
    for (const QString& name : given) {
        if (name != QLatin1String(".."))
            names += name;
        else if (names.size() > 1)
            names.removeLast();
    }
    return names.join(QLatin1Char('/'));
}

bool hasParents(const QString& path)
{
    return path.split(QLatin1Char('/')).contains(QStringLiteral(".."));
}

} // namespace

ReplayFolder::ReplayFolder(const QString& directory) : m_directory(directory)
{
    const QDir folder(m_folder.path());
    folder.mkpath(QStringLiteral("root"));
    m_root = QFileInfo(folder.filePath(QStringLiteral("root"))).canonicalFilePath();
    QDir().mkpath(this->directory());
}

// A name that no path of a recording begins with by chance.
QString ReplayFolder::directory() const
{
    return m_root + ownDirectory();
}

QString ReplayFolder::ownDirectory() const
{
    return m_directory.isEmpty() ? QStringLiteral("/unknown-directory")
                                 : withoutParents(m_directory);
}

QString ReplayFolder::toReplay(const QString& path) const
{
    if (hasParents(path))
        return m_root + withoutParents(isAbsolute(path) ? path : ownDirectory() + '/' + path);
    return isAbsolute(path) ? m_root + path : path;
}

void ReplayFolder::makeFolderOf(const QString& path) const
{
    if (!path.isEmpty())
        QDir().mkpath(QFileInfo(toReplay(path)).path());
}

QString ReplayFolder::toRecorded(const QString& text) const
{
    return text.startsWith(m_root + QLatin1Char('/')) ? text.mid(m_root.size()) : text;
}

bool ReplayFolder::isSame(const QString& recorded, const QString& replayed) const
{
    if (recorded == toRecorded(replayed))
        return true;
    const QString here = directory() + QLatin1Char('/');
    return m_directory.isEmpty() && isAbsolute(recorded) && replayed.startsWith(here) &&
           recorded.endsWith(replayed.midRef(here.size() - 1));
}

QString ReplayFolder::absolute(const QString& path) const
{
    const QString whole = isAbsolute(path) ? path : m_directory + QLatin1Char('/') + path;
    return QDir::cleanPath(whole);
}

void ReplayFolder::setKnown(const QString& path)
{
    m_known.insert(absolute(path));
}

void ReplayFolder::setFolderKnown(const QString& path)
{
    m_knownFolders.insert(absolute(path));
}

bool ReplayFolder::isKnown(const QString& path) const
{
    const QString whole = absolute(path);
    return m_known.contains(whole) || m_knownFolders.contains(whole) ||
           m_knownFolders.contains(QFileInfo(whole).path());
}

WorkingDirectory::WorkingDirectory(const QString& path) : m_former(QDir::currentPath())
{
    QDir::setCurrent(path);
}

WorkingDirectory::~WorkingDirectory()
{
    QDir::setCurrent(m_former);
}

} // namespace replay
