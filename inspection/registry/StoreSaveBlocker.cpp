#include "inspection/registry/StoreSaveBlocker.h"

#include "host/HostLibraries.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>

StoreSaveBlocker::StoreSaveBlocker()
{
    if (g_globalSettings)
        g_globalSettings->installEventFilter(this);
}

StoreSaveBlocker::~StoreSaveBlocker()
{
    if (!g_globalSettings)
        return;
    g_globalSettings->removeEventFilter(this);
    if (m_swallowed)
        QCoreApplication::postEvent(g_globalSettings, new QEvent(QEvent::UpdateRequest));
}

bool StoreSaveBlocker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QObject::eventFilter(watched, event);
    m_swallowed = true;
    return true;
}
