#pragma once

#include "inspection/host/ElfObjects.h"
#include "inspection/host/LoaderCache.h"
#include "inspection/host/SearchPlaces.h"

#include <QStringList>

/// What led the dynamic loader to a library.
enum class FoundBy
{
    Nothing,
    Path,          ///< the name is a path
    LoadedBefore,  ///< another library or the application has it already
    Rpath,         ///< of the library that needs it, or of one of those that led to that one
    LibraryPath,   ///< LD_LIBRARY_PATH
    Runpath,       ///< of the library that needs it
    Cache,         ///< the list that ldconfig writes
    DefaultFolder, ///< one of the system's
};

/// The answer to a search.
struct FoundLibrary
{
    std::shared_ptr<const ElfObject> object; ///< null where nothing was found; may have a fault
    FoundBy by = FoundBy::Nothing;
    QStringList passedOver; ///< files of that name for other machines
    QStringList folders;    ///< where it was looked for
};

/// Looks for needed libraries where the dynamic loader does, in the same order.
class LibrarySearch
{
public:
    /// `objects` has to outlive this object.
    LibrarySearch(const SearchPlaces& places, ElfObjects& objects);

    /// `chain` begins with the library that needs the other one, goes on with the one that needed
    /// that, and ends with the program.
    FoundLibrary find(const QByteArray& name, const QVector<const ElfObject*>& chain);

private:
    bool lookIn(const QStringList& folders, const QByteArray& name, FoundBy by,
                FoundLibrary& found);
    bool lookByRpath(const QByteArray& name, const QVector<const ElfObject*>& chain,
                     FoundLibrary& found);
    bool lookInSystem(const QByteArray& name, const ElfObject& requester, FoundLibrary& found);
    bool take(const QString& path, FoundBy by, FoundLibrary& found);

    SearchPlaces m_places;
    LoaderCache m_cache;
    ElfObjects& m_objects;
};
