#include "inspection/registry/StoreWatch.h"

#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreFault.h"

#include <QEvent>

StoreWatch::StoreWatch()
{
    attach();
    // Either it has gone before, or nothing has been saved yet.
    if (m_store && !m_seen.exists() && storeFault().isEmpty())
        m_state = State::Unknown;
}

void StoreWatch::attach()
{
    m_store = RawStore::receiver();
    if (m_store)
        m_store->installEventFilter(this);
    takeSaved();
}

bool StoreWatch::eventFilter(QObject* watched, QEvent* event)
{
    // The store saves itself when it gets the event, which is right after this. What another
    // program does to the file afterwards must not be taken for it: it is not put off for long.
    if (event->type() == QEvent::UpdateRequest) {
        m_isSaving = true;
        if (m_state == State::Vanished && !FileStamp::of(RawStore::fileName()).exists())
            m_hasLost = true;
        QMetaObject::invokeMethod(this, &StoreWatch::takeSaving, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

void StoreWatch::takeSaving()
{
    if (m_isSaving)
        takeSaved();
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
    m_isSaving = false;
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
    return m_difference && hasReadDifference() ? State::Unknown : m_state;
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
    if (!comparison.difference())
        return takeSame(comparison.file());
    m_hasLost = false;
    m_seen = comparison.file();
    m_difference = comparison.difference();
    ++m_revision;
    if (!m_seen.exists())
        m_state = State::Vanished;
    else
        m_state = m_seen.isSameFile(m_saved) ? State::Changed : State::Replaced;
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
    case State::Unknown:
    case State::Changed: break;
    }
    return tr("Another program has changed the store's file %1.").arg(file) + QLatin1Char(' ') +
           rest;
}
