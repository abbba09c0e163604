#include "inspection/registry/StoreSavingGuard.h"

#include "inspection/registry/RawStore.h"
#include "platform/registry/StoreLines.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimerEvent>

namespace {

constexpr int shortestWait = 1000; // milliseconds
constexpr int waitFactor = 10;     // times as long as the trial has taken

QMap<QString, QVariant> heldEntries()
{
    const RawStore store({}, RawStore::Reach::OwnFile);
    QMap<QString, QVariant> held;
    const QStringList names = store.allEntries();
    for (const QString& name : names)
        held.insert(name, store.value(name));
    return held;
}

} // namespace

std::shared_ptr<StoreSavingGuard> StoreSavingGuard::ofStore()
{
    static std::weak_ptr<StoreSavingGuard> latest;
    std::shared_ptr<StoreSavingGuard> guard = latest.lock();
    if (!RawStore::exists() || (guard && guard->m_store == RawStore::receiver()))
        return RawStore::exists() ? guard : nullptr;
    guard.reset(new StoreSavingGuard);
    latest = guard;
    return guard;
}

StoreSavingGuard::StoreSavingGuard() : m_store(RawStore::receiver())
{
    m_store->installEventFilter(this);
}

// The store would save itself once more when it ends, with nobody to look at what it leaves.
StoreSavingGuard::~StoreSavingGuard()
{
    settle();
    if (m_store && m_store == RawStore::receiver() && !m_owed.isEmpty())
        static_cast<void>(saveStore());
}

bool StoreSavingGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest || watched != RawStore::receiver())
        return QObject::eventFilter(watched, event);
    if (m_wait.isActive()) {
        m_withheld.emplace();
        return true; // the next trial saves that, too
    }
    begin();
    return false;
}

// The store saves itself when it gets the event, which is right after this. What another program
// does to the file afterwards must not be taken for it: it is not put off for long.
void StoreSavingGuard::begin()
{
    settle();
    m_saving.emplace();
    m_entries = RawStore({}, RawStore::Reach::OwnFile).allEntries().size();
    QMetaObject::invokeMethod(this, &StoreSavingGuard::settle, Qt::QueuedConnection);
}

void StoreSavingGuard::settle()
{
    if (!m_saving)
        return;
    Outcome outcome;
    outcome.hadFile = m_saving->hadFile();
    outcome.hasWritten = m_saving->hasWritten();
    outcome.isCut = outcome.hasWritten && isCut();
    const Entries owedBefore = std::exchange(m_owed, {});
    if (outcome.isCut)
        putBack();
    outcome.isRepeated = outcome.isCut && m_owed == owedBefore;
    m_saving.reset();
    outcome.file = KnownFile::of(RawStore::fileName());
    emit ended(outcome);
}

// The quick look is for files in the format that it knows.
bool StoreSavingGuard::isCut() const
{
    const bool isKnown = RawStore::isIniFile();
    return (!isKnown || mayBeCut(m_saving->file(), m_entries)) && !m_saving->isWhole();
}

// The store takes everything for saved. So it reads the former file, which it does when it is told
// to save nothing, and is told its entries again as changes.
void StoreSavingGuard::putBack()
{
    QElapsedTimer clock;
    clock.start();
    const Entries held = heldEntries();
    m_saving->undo();
    m_saving.reset();
    static_cast<void>(saveStore());
    m_owed = owe(held);
    m_wait.start(qMax(shortestWait, waitFactor * static_cast<int>(clock.elapsed())), this);
}

// Removing an entry removes the group of its name with it, which is why that comes first.
StoreSavingGuard::Entries StoreSavingGuard::owe(const Entries& held)
{
    RawStore store({}, RawStore::Reach::OwnFile);
    Entries owed;
    const QStringList saved = store.allEntries();
    for (const QString& name : saved) {
        if (held.contains(name))
            continue;
        store.remove(name);
        owed.insert(name, {});
    }
    for (auto entry = held.begin(); entry != held.end(); ++entry) {
        if (store.contains(entry.key()) && store.value(entry.key()) == entry.value())
            continue;
        store.set(entry.key(), entry.value());
        owed.insert(entry.key(), entry.value());
    }
    return owed;
}

// The event that the store has sent itself for them has been dropped.
void StoreSavingGuard::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_wait.timerId())
        return QObject::timerEvent(event);
    m_wait.stop();
    if (m_store)
        QCoreApplication::postEvent(m_store, new QEvent(QEvent::UpdateRequest));
    m_withheld.reset();
}
