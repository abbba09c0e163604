#include "inspection/registry/StoreSaveBlocker.h"

#include "inspection/registry/RawStore.h"

#include <QCoreApplication>
#include <QEvent>

StoreSaveBlocker::StoreSaveBlocker() : m_store(RawStore::receiver())
{
    if (m_store)
        m_store->installEventFilter(this);
}

StoreSaveBlocker::~StoreSaveBlocker()
{
    if (!m_store)
        return;
    m_store->removeEventFilter(this);
    if (m_blocked)
        QCoreApplication::postEvent(m_store, new QEvent(QEvent::UpdateRequest));
}

// The event by which QSettings asks itself to save.
bool StoreSaveBlocker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QObject::eventFilter(watched, event);
    m_blocked.emplace();
    return true;
}
