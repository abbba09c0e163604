#include "platform/registry/SavingProbe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScopeGuard>
#include <QSettings>

#include <utility>

bool SavingProbe::isSavingPending(QSettings& store)
{
    // An event filter of the application may ask again while it is shown the event, which is in no
    // queue at that moment.
    if (m_isAsking)
        return true;
    m_isAsking = true;
    // The filter that was installed last is asked first.
    store.installEventFilter(this);
    const auto end = qScopeGuard([this, &store] {
        store.removeEventFilter(this);
        m_isAsking = false;
    });
    QCoreApplication::sendPostedEvents(&store, QEvent::UpdateRequest);
    return std::exchange(m_hasSeen, false);
}

bool SavingProbe::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QObject::eventFilter(watched, event);
    m_hasSeen = true;
    QCoreApplication::postEvent(watched, new QEvent(QEvent::UpdateRequest));
    return true;
}
