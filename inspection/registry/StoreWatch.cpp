#include "inspection/registry/StoreWatch.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreFault.h"

#include <QEvent>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

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
}

StoreWatch::~StoreWatch()
{
    std::vector<StoreWatch*>& watches = living();
    watches.erase(std::remove(watches.begin(), watches.end(), this), watches.end());
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
    m_hasLost = earlier.m_hasLost;
    return true;
}

void StoreWatch::attach()
{
    m_store = RawStore::receiver();
    if (m_store)
        m_store->installEventFilter(this);
    takeSaved();
    m_isFirst = true;
    m_isDamageKnown = false;
}

bool StoreWatch::eventFilter(QObject* watched, QEvent* event)
{
    // The store saves itself when it gets the event, which is right after this. What another
    // program does to the file afterwards must not be taken for it: it is not put off for long.
    if (event->type() == QEvent::UpdateRequest) {
        m_isSaving = true;
        m_beforeSaving = FileStamp::of(RawStore::fileName());
        const bool hadFile = m_state == State::Vanished || m_seen.exists();
        m_isFileNew = hadFile && !m_beforeSaving.exists();
        QMetaObject::invokeMethod(this, &StoreWatch::takeSaving, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

// A saving that has failed leaves the file alone, as one does that has nothing to save. The store
// never forgets a failure: where there has been one, a comparison tells the two apart.
void StoreWatch::takeSaving()
{
    if (!m_isSaving)
        return;
    takeSaved();
    if (m_isFileNew && m_seen.exists())
        m_hasLost = true;
    if (m_seen != m_beforeSaving || !RawStore::hasFailed() || !storeFault().isEmpty())
        return;
    m_hasFailed = true;
    m_state = State::Unknown;
}

int StoreWatch::revision()
{
    takeSaving();
    return m_revision;
}

// Saving reads the file first and adds the changes: whatever has happened to it is in the store.
void StoreWatch::takeSaved()
{
    m_saved = m_seen = FileStamp::of(RawStore::fileName());
    m_state = State::InStep;
    m_difference.reset();
    m_isSaving = m_hasFailed = m_isFirst = false;
    m_isDamageKnown = true; // the store saves no lines but entries
    ++m_revision;
}

StoreWatch::State StoreWatch::state()
{
    if (m_store != RawStore::receiver())
        attach();
    takeSaving();
    const FileStamp now = FileStamp::of(RawStore::fileName());
    if (!m_store)
        return State::InStep;
    if (now != m_seen)
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
    takeSaved();
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
    if (comparison.file() != FileStamp::of(RawStore::fileName()))
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
    if (m_hasFailed && m_seen == m_saved)
        return State::Unsaved;
    if (!m_seen.exists())
        return State::Vanished;
    return m_seen.isSameFile(m_saved) ? State::Changed : State::Replaced;
}

// The store that was found as it is shown need not be shown anew.
void StoreWatch::takeSame(const FileStamp& file)
{
    if (m_state == State::Unknown && file == m_seen)
        m_state = State::InStep;
    else
        takeSaved();
}

QString StoreWatch::text()
{
    const QString file = RawStore::fileName();
    const QString rest = tr("The store still holds what it had read. Its next change makes it read "
                            "the file, and what the file lacks is gone.");
    switch (state()) {
    case State::InStep: return {};
    case State::Vanished:
        return tr("The store's file %1 is gone: another program has deleted or moved it. The store "
                  "still holds what it had read. Its next change makes a new file that holds "
                  "nothing but that change.")
            .arg(file);
    case State::Replaced:
        return tr("Another program has replaced the store's file %1.").arg(file) +
               QLatin1Char(' ') + rest;
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
    return tr("Another program has changed the store's file %1.").arg(file) + QLatin1Char(' ') +
           rest;
}
