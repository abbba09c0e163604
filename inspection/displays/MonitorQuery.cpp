#include "inspection/displays/MonitorQuery.h"

#include "platform/PlatformServicesImp.h"

#include <QCoreApplication>

const std::array<MonitorFlag, 3> monitorFlags{{
    {MONITOR_DEFAULTTONULL, "DEFAULTTONULL",
     QT_TRANSLATE_NOOP("MonitorQuery", "The monitor that holds the point, else null.")},
    {MONITOR_DEFAULTTOPRIMARY, "DEFAULTTOPRIMARY",
     QT_TRANSLATE_NOOP("MonitorQuery", "The monitor that holds the point, else the primary one.")},
    {MONITOR_DEFAULTTONEAREST, "DEFAULTTONEAREST",
     QT_TRANSLATE_NOOP("MonitorQuery",
                       "The monitor that holds the point, else the one with the nearest edge line; "
                       "edge lines go on beyond the corners.")},
}};

QString MonitorFlag::ruleText() const
{
    return QCoreApplication::translate("MonitorQuery", rule);
}

HMONITOR monitorAt(const QPoint& point, unsigned int flags)
{
    return g_PlatformServices.resourceManager()->MonitorFromPoint({point.x(), point.y()}, flags);
}
