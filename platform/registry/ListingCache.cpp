#include "platform/registry/ListingCache.h"

#include "platform/registry/StoreSections.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QSettings>
#include <QThread>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace {

using Names = std::shared_ptr<const StoreNames>;

// As many as a walk through the keys needs to come back to the ones it came through.
constexpr std::size_t mostLists = 32;

Names listed(const QSettings& store, ListingCache::Kind kind)
{
    return std::make_shared<const StoreNames>(kind == ListingCache::Kind::Keys ? store.childGroups()
                                                                               : store.childKeys());
}

// Whatever becomes of the event, delivered or thrown away, what it owns goes with it.
template <typename Owned>
class OwningEvent : public QEvent
{
public:
    explicit OwningEvent(std::shared_ptr<Owned> owned)
        : QEvent(QEvent::User), m_owned(std::move(owned))
    {
    }

private:
    std::shared_ptr<Owned> m_owned;
};

// Makes something that lives until control has returned to the event loop.
template <typename Owned>
std::shared_ptr<Owned> madeForTurn(QObject& receiver, int priority)
{
    auto owned = std::make_shared<Owned>();
    QCoreApplication::postEvent(&receiver, new OwningEvent<Owned>(owned), priority);
    return owned;
}

} // namespace

// The lists of one store, made in one turn of the event loop, the one that was used last in front.
class ListingCache::Turn
{
public:
    // False when the lists were another store's or were made from another state of the file.
    bool isOf(const QSettings& store, const FileStamp& file) const
    {
        return m_store == &store && m_file == file;
    }

    void begin(QSettings& store, const FileStamp& file)
    {
        // Another store's file says nothing of this one's.
        m_hasFileChanged = m_hasFileChanged || m_store == &store;
        m_store = &store;
        m_file = file;
        clear();
    }

    bool hasFileChanged() const { return m_hasFileChanged; }
    const FileStamp& file() const { return m_file; }

    Names find(const QSettings& store, Kind kind)
    {
        const QString group = store.group();
        const auto found = std::find_if(m_lists.begin(), m_lists.end(), [&](const List& list) {
            return list.kind == kind && list.group == group &&
                   list.withFallbacks == store.fallbacksEnabled();
        });
        if (found == m_lists.end())
            return nullptr;
        std::rotate(m_lists.begin(), found, found + 1);
        return m_lists.front().names;
    }

    void keep(const QSettings& store, Kind kind, const Names& names)
    {
        if (m_lists.size() == mostLists)
            m_lists.pop_back();
        m_lists.insert(m_lists.begin(), {store.group(), kind, store.fallbacksEnabled(), names});
    }

    void clear() { m_lists.clear(); }

private:
    struct List
    {
        QString group;
        Kind kind;
        bool withFallbacks;
        Names names;
    };

    QPointer<const QSettings> m_store; // null when it has gone, and another may have its address
    FileStamp m_file;
    bool m_hasFileChanged = false;
    std::vector<List> m_lists;
};

std::shared_ptr<const StoreNames> ListingCache::names(QSettings& store, Kind kind)
{
    return isPossible(store) ? instance().keptNames(store, kind) : listed(store, kind);
}

void ListingCache::drop()
{
    const QCoreApplication* application = QCoreApplication::instance();
    if (!application || application->thread() != QThread::currentThread())
        return;
    if (const std::shared_ptr<Turn> turn = instance().m_turn.lock())
        turn->clear();
}

// Events can be posted and taken back in this thread, for this store.
bool ListingCache::isPossible(const QSettings& store)
{
    const QCoreApplication* application = QCoreApplication::instance();
    const QThread* thread = QThread::currentThread();
    return application && !QCoreApplication::closingDown() && application->thread() == thread &&
           store.thread() == thread && instance().m_probe.thread() == thread;
}

// Never destroyed: host libraries may call until the very end of the process.
ListingCache& ListingCache::instance()
{
    static ListingCache* const instance = new ListingCache;
    return *instance;
}

std::shared_ptr<const StoreNames> ListingCache::keptNames(QSettings& store, Kind kind)
{
    const std::shared_ptr<Turn> turn = certainTurn(store);
    if (!turn) {
        drop();
        return listed(store, kind);
    }
    Names kept = turn->find(store, kind);
    if (kept && !mayHideGroups(store, turn->file()))
        return kept;
    Names names = listed(store, kind);
    if (!kept)
        turn->keep(store, kind, names);
    return names;
}

// Null where nothing may be kept.
std::shared_ptr<ListingCache::Turn> ListingCache::certainTurn(QSettings& store)
{
    // Its event comes first of all as long as nothing has been asked.
    std::shared_ptr<Turn> turn = currentTurn();
    if (Suspension::isActive() || hasUnsavedChange(store))
        return nullptr;
    const FileStamp file = FileStamp::of(store.fileName());
    if (!file.isSure())
        return nullptr;
    if (!turn->isOf(store, file))
        turn->begin(store, file);
    return turn->hasFileChanged() ? nullptr : turn;
}

// A saving that was found pending is taken to be so until events of the lowest priority have had
// their turn. Asking each time would put the event into the queue as often.
bool ListingCache::hasUnsavedChange(QSettings& store)
{
    if (!m_unsaved.expired())
        return true;
    if (!m_probe.isSavingPending(store))
        return false;
    m_unsaved = madeForTurn<int>(m_probe, std::numeric_limits<int>::min());
    return true;
}

// The lists go before anything else happens in the event loop.
std::shared_ptr<ListingCache::Turn> ListingCache::currentTurn()
{
    std::shared_ptr<Turn> turn = m_turn.lock();
    if (!turn)
        m_turn = turn = madeForTurn<Turn>(m_probe, std::numeric_limits<int>::max());
    return turn;
}

bool ListingCache::mayHideGroups(const QSettings& store, const FileStamp& file)
{
    if (m_readFile != file) {
        m_hasHiddenGroups = hasHiddenGroups(store.fileName());
        m_readFile = file;
    }
    return m_hasHiddenGroups;
}
