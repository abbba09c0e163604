#include "inspection/displays/MonitorList.h"

#include "platform/PlatformServicesImp.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

// The service names the last pixel inside as right and bottom.
QRect rectangle(const RECT& rect)
{
    return {QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom)};
}

} // namespace

bool operator==(const Monitor& a, const Monitor& b)
{
    return a.handle == b.handle && a.full == b.full && a.work == b.work && a.flags == b.flags;
}

// The services have no call that lists the monitors. Their handles are Qt's screens; everything
// about them is asked through the service.
std::vector<Monitor> monitors()
{
    std::vector<Monitor> list;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        MONITORINFO info{};
        if (g_PlatformServices.resourceManager()->GetMonitorInfoW(screen, &info) != 0)
            list.push_back(
                {screen, rectangle(info.rcMonitor), rectangle(info.rcWork), info.dwFlags});
    }
    return list;
}

QString monitorName(const std::vector<Monitor>& list, HMONITOR handle)
{
    if (!handle)
        return QStringLiteral("null");
    const auto found = std::find_if(list.begin(), list.end(), [handle](const Monitor& monitor) {
        return monitor.handle == handle;
    });
    if (found == list.end())
        return handleText(handle);
    return QCoreApplication::translate("MonitorList", "Monitor %1")
        .arg(std::distance(list.begin(), found) + 1);
}

QStringList monitorCaptions(const std::vector<Monitor>& list, const Monitor& monitor)
{
    const QString name = monitorName(list, monitor.handle);
    const QString size =
        QStringLiteral("%1 \u00d7 %2").arg(monitor.full.width()).arg(monitor.full.height());
    const QString caption = name + QLatin1Char('\n') + size;
    QStringList captions = {caption, name, name.section(QLatin1Char(' '), -1)};
    if (monitor.isPrimary())
        captions.prepend(caption + QLatin1Char('\n') +
                         QCoreApplication::translate("MonitorList", "Primary"));
    return captions;
}

QString edgesText(const QRect& rect)
{
    return QStringLiteral("%1, %2, %3, %4")
        .arg(rect.left())
        .arg(rect.top())
        .arg(rect.right())
        .arg(rect.bottom());
}

QString flagsText(const Monitor& monitor)
{
    const QString form = monitor.isPrimary()
                             ? QCoreApplication::translate("MonitorList", "%1 (primary)")
                             : QStringLiteral("%1");
    return form.arg(monitor.flags);
}

QString handleText(const void* handle)
{
    return QStringLiteral("0x%1").arg(reinterpret_cast<quintptr>(handle), 0, 16);
}
