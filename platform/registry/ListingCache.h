#pragma once

#include "platform/files/FileStamp.h"
#include "platform/registry/SavingProbe.h"
#include "platform/registry/StoreNames.h"

#include <memory>
#include <optional>

class QSettings;

/// Lists the names in a group of the store, and keeps the lists from one call to the next where
/// they are certain to be what listing anew would give. Enumeration asks for one name a call, and
/// listing a group takes as long as it is large.
///
/// Others than the services write to the store, and nobody is told of it. So a list is kept
///
/// - only where the store has no unsaved change, which `SavingProbe` tells; as long as there is
/// one,
///   every call lists anew;
/// - only where the time stamp of the store's file is so old that a further change gives another
///   one (`FileStamp::isSure`), and as long as the file is the same, of the same size and time;
/// - until the services write to the store, and at the latest until control returns to the event
///   loop;
/// - only in the application's thread, and not without an application object, whose absence would
///   make asking for unsaved changes lose them;
/// - only where the file has no sections below sections and the like, see `hasHiddenGroups`.
///
/// A file that changes while a list is kept has been changed by somebody else, whose changes the
/// store may be made to read at any moment: nothing more is kept until control returns.
///
/// Intended: what stays beyond this are a second QSettings object on the same file, or a `sync()`
/// after a change by another program, in the middle of one enumeration and within one turn of the
/// event loop; and an event filter that withholds the store's saving for good. Where this program
/// does so, a `Suspension` tells.
class ListingCache
{
public:
    enum class Kind
    {
        Keys,  ///< the groups in the group
        Values ///< the entries in the group
    };

    /// The names in the group that the store is in; never null.
    static std::shared_ptr<const StoreNames> names(QSettings& store, Kind kind);

    /// To be called before the services write to any store. Does nothing in other threads than the
    /// application's: the change itself will be noticed.
    static void drop();

    /// While one lives, nothing is kept.
    class Suspension
    {
    public:
        Suspension() { ++activeCount; }
        ~Suspension() { --activeCount; }

        Suspension(const Suspension&) = delete;
        Suspension& operator=(const Suspension&) = delete;

        static bool isActive() { return activeCount > 0; }

    private:
        static inline int activeCount = 0;
    };

private:
    class Turn;

    static bool isPossible(const QSettings& store);
    static ListingCache& instance();

    std::shared_ptr<Turn> certainTurn(QSettings& store);
    std::shared_ptr<const StoreNames> keptNames(QSettings& store, Kind kind);
    bool hasUnsavedChange(QSettings& store);
    std::shared_ptr<Turn> currentTurn();
    bool mayHideGroups(const QSettings& store, const FileStamp& file);

    SavingProbe m_probe;
    std::weak_ptr<Turn> m_turn;   ///< the lists; null when control has returned to the event loop
    std::weak_ptr<int> m_unsaved; ///< null when the saving that was found pending may be over
    std::optional<FileStamp> m_readFile; ///< the one that was looked through for hidden groups
    bool m_hasHiddenGroups = false;      ///< it has some
};
