#include "inspection/host/LibrarySearch.h"

#include <QFile>
#include <QFileInfo>

namespace {

QString originOf(const ElfObject& object)
{
    return QFileInfo(object.path).absolutePath();
}

QStringList foldersOf(const std::optional<QByteArray>& path, const ElfObject& object)
{
    return searchFolders(path.value_or(QByteArray()), ":", originOf(object));
}

} // namespace

LibrarySearch::LibrarySearch(const SearchPlaces& places, ElfObjects& objects)
    : m_places(places), m_cache(LoaderCache::read(places.cacheFile)), m_objects(objects)
{
}

FoundLibrary LibrarySearch::find(const QByteArray& name, const QVector<const ElfObject*>& chain)
{
    FoundLibrary found;
    const ElfObject& requester = *chain.first();
    if (name.contains('/')) {
        take(searchFolders(name, ":", originOf(requester)).value(0), FoundBy::Path, found);
        return found;
    }
    // Intended by the dynamic loader: a RUNPATH switches the RPATH of its library off, and all
    // RPATHs that would be inherited.
    if (!requester.runpath && lookByRpath(name, chain, found))
        return found;
    if (lookIn(searchFolders(m_places.libraryPath, ":;", originOf(*chain.last())), name,
               FoundBy::LibraryPath, found))
        return found;
    if (lookIn(foldersOf(requester.runpath, requester), name, FoundBy::Runpath, found))
        return found;
    lookInSystem(name, requester, found);
    return found;
}

bool LibrarySearch::lookByRpath(const QByteArray& name, const QVector<const ElfObject*>& chain,
                                FoundLibrary& found)
{
    for (const ElfObject* object : chain) {
        if (!object->runpath &&
            lookIn(foldersOf(object->rpath, *object), name, FoundBy::Rpath, found))
            return true;
    }
    return false;
}

bool LibrarySearch::lookInSystem(const QByteArray& name, const ElfObject& requester,
                                 FoundLibrary& found)
{
    if (requester.ignoresDefaultFolders)
        return false;
    const QByteArray listed = m_cache.pathOf(name);
    if (!listed.isEmpty() && take(QFile::decodeName(listed), FoundBy::Cache, found))
        return true;
    return lookIn(m_places.defaultFolders, name, FoundBy::DefaultFolder, found);
}

bool LibrarySearch::lookIn(const QStringList& folders, const QByteArray& name, FoundBy by,
                           FoundLibrary& found)
{
    for (const QString& folder : folders) {
        if (!found.folders.contains(folder))
            found.folders << folder;
        if (take(folder + QLatin1Char('/') + QFile::decodeName(name), by, found))
            return true;
    }
    return false;
}

// A file for another machine is passed over; one with any other fault ends the search, as it ends
// the dynamic loader's.
bool LibrarySearch::take(const QString& path, FoundBy by, FoundLibrary& found)
{
    if (!QFileInfo::exists(path))
        return false;
    const std::shared_ptr<const ElfObject> object = m_objects.at(path);
    const bool isElf = object->identity.bits != 0;
    if (object->fault == ElfFault::Folder || object->fault == ElfFault::Unreadable)
        return false;
    if (isElf && !object->identity.suits(ElfIdentity::ofThisProcess())) {
        if (!found.passedOver.contains(object->path))
            found.passedOver << object->path;
        return false;
    }
    found.object = object;
    found.by = by;
    return true;
}
