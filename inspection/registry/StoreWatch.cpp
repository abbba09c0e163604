#include "inspection/registry/StoreWatch.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreFault.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int lookMilliseconds = 500;

// The earliest first. The window watches the store from its beginning, and a page from its first
// visit: what has happened to the file in between is known to the first of them.
std::vector<StoreWatch*>& living()
{
    static std::vector<StoreWatch*> watches;
    return watches;
}

} // namespace

StoreWatch::StoreWatch()
{
    attach();
    for (StoreWatch* earlier : living()) {
        if (takeOver(*earlier))
            break;
    }
    living().push_back(this);
    startTimer(lookMilliseconds);
}

StoreWatch::~StoreWatch()
{
    std::vector<StoreWatch*>& watches = living();
    watches.erase(std::remove(watches.begin(), watches.end(), this), watches.end());
    if (m_guard)
        m_guard->disconnect(this); // it may end with this watch, and then saves the store
}

bool StoreWatch::takeOver(StoreWatch& earlier)
{
    earlier.takeSaving();
    if (earlier.m_store != m_store)
        return false;
    m_saved = earlier.m_saved;
    m_seen = earlier.m_seen;
    m_state = earlier.m_state;
    m_difference = earlier.m_difference;
    m_hasFailed = earlier.m_hasFailed;
    m_isDamaged = earlier.m_isDamaged;
    m_hasLost = earlier.m_hasLost;
    return true;
}

void StoreWatch::attach()
{
    if (m_guard)
        m_guard->disconnect(this);
    m_store = RawStore::receiver();
    m_guard = StoreSavingGuard::ofStore();
    if (m_guard) {
        m_guard->settle(); // what came before is for those who have seen it
        connect(m_guard.get(), &StoreSavingGuard::ended, this, &StoreWatch::takeOutcome);
    }
    takeSaved(KnownFile::of(RawStore::fileName()));
    m_isFirst = true;
    m_isDamageKnown = false;
}

// The host library may set up its store late, or another one, while nobody asks for the state.
void StoreWatch::timerEvent(QTimerEvent* /*event*/)
{
    if (m_store != RawStore::receiver())
        attach();
}

// A saving that has failed leaves the file alone, as one does that has nothing to save. The store
// never forgets a failure: where there has been one, a comparison tells the two apart.
void StoreWatch::takeOutcome(const StoreSavingGuard::Outcome& outcome)
{
    if (outcome.isRepeated && m_state == State::Unsaved) {
        m_saved = m_seen = outcome.file;
        return;
    }
    const bool hadFile = m_state == State::Vanished || m_seen.exists();
    takeSaved(outcome.file);
    if (hadFile && !outcome.hadFile && m_seen.exists())
        m_hasLost = true;
    const bool mayHaveFailed =
        !outcome.hasWritten && RawStore::hasFailed() && storeFault().isEmpty();
    if (!outcome.isCut && !mayHaveFailed)
        return;
    m_hasFailed = true;
    m_state = State::Unknown;
}

void StoreWatch::takeSaving()
{
    if (m_guard)
        m_guard->settle();
}

int StoreWatch::revision()
{
    takeSaving();
    return m_revision;
}

// Saving reads the file first and adds the changes: whatever has happened to it is in the store.
void StoreWatch::takeSaved(const KnownFile& file)
{
    m_saved = m_seen = file;
    m_state = State::InStep;
    m_difference.reset();
    m_hasFailed = m_isDamaged = m_isFirst = false;
    m_isDamageKnown = true; // the store saves no lines but entries
    ++m_revision;
}

StoreWatch::State StoreWatch::state()
{
    if (m_store != RawStore::receiver())
        attach();
    takeSaving();
    if (!m_store)
        return State::InStep;
    if (!m_seen.isStill(RawStore::fileName()))
        return changedState();
    if (m_difference)
        return hasReadDifference() ? State::Unknown : m_state;
    if (mayDiffer())
        m_state = State::Unknown;
    return m_state;
}

// Without a file it has gone before, or nothing has been saved yet. The store meets damage when it
// parses the file, which it does bit by bit.
bool StoreWatch::mayDiffer()
{
    const bool isMissing = std::exchange(m_isFirst, false) && !m_seen.exists();
    const bool isDamageNew = !m_isDamageKnown && RawStore::hasMetDamage();
    return m_state == State::InStep && (isMissing || isDamageNew) && storeFault().isEmpty();
}

// A store that cannot be saved does no harm to any file, and that it cannot is told elsewhere.
StoreWatch::State StoreWatch::changedState()
{
    if (storeFault().isEmpty())
        return State::Unknown;
    takeSaved(KnownFile::of(RawStore::fileName()));
    return State::InStep;
}

// The store agrees with the file where it did not: it may have read it.
bool StoreWatch::hasReadDifference() const
{
    const RawStore store({}, RawStore::Reach::OwnFile);
    const QString& name = m_difference->name;
    return store.contains(name) == m_difference->isInFile &&
           store.value(name) == m_difference->inFile;
}

void StoreWatch::settle(const StoreComparisonJob& comparison)
{
    if (comparison.file().stamp() != FileStamp::of(RawStore::fileName()))
        return; // it has changed meanwhile
    if (!comparison.difference()) {
        takeSame(comparison.file());
        m_isDamageKnown = true;
        if (comparison.isDamaged())
            m_state = State::Damaged;
        return;
    }
    m_seen = comparison.file();
    m_difference = comparison.difference();
    m_isDamaged = comparison.isDamaged();
    ++m_revision;
    m_state = differenceState();
    if (m_state == State::Unsaved)
        ++m_failedSavings;
    else
        m_hasLost = false;
}

// After a saving that has failed the file is as it was before.
StoreWatch::State StoreWatch::differenceState() const
{
    if (m_hasFailed && m_seen.stamp() == m_saved.stamp())
        return State::Unsaved;
    if (!m_seen.exists())
        return State::Vanished;
    return m_seen.stamp().isSameFile(m_saved.stamp()) ? State::Changed : State::Replaced;
}

// The store that was found as it is shown need not be shown anew.
void StoreWatch::takeSame(const KnownFile& file)
{
    if (m_state == State::Unknown && file.stamp() == m_seen.stamp())
        m_state = State::InStep;
    else
        takeSaved(file);
}

QString StoreWatch::text()
{
    const QString file = RawStore::fileName();
    switch (state()) {
    case State::InStep: return {};
    case State::Vanished:
        return tr("The store's file %1 is gone: another program has deleted or moved it. The store "
                  "still holds what it had read. Its next change makes a new file that holds "
                  "nothing but that change.")
            .arg(file);
    case State::Replaced:
        return withConsequence(tr("Another program has replaced the store's file %1.").arg(file));
    case State::Damaged:
        return tr("The store's file %1 is damaged: it has lines that are no entries. The store "
                  "leaves them out, and its next change writes the file without them.")
            .arg(file);
    case State::Unsaved:
        return tr("The store could not be saved to %1, for which a full disk may be the reason. "
                  "The last changes are not in the file, and end with the program unless a later "
                  "change is saved.")
            .arg(file);
    case State::Unknown:
    case State::Changed: break;
    }
    return withConsequence(tr("Another program has changed the store's file %1.").arg(file));
}

QString StoreWatch::withConsequence(const QString& event) const
{
    const QString rest = tr("The store still holds what it had read. Its next change makes it read "
                            "the file, and what the file lacks is gone.");
    const QString damage = tr("The file is damaged, too: it has lines that are no entries, and "
                              "that change writes it without them.");
    const QString text = event + QLatin1Char(' ') + rest;
    return m_isDamaged ? text + QLatin1Char(' ') + damage : text;
}
