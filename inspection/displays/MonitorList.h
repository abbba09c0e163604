#pragma once

#include "platform/WindowsTypes.h"

#include <QRect>
#include <QString>

#include <vector>

/// A monitor as GetMonitorInfoW describes it.
struct Monitor
{
    HMONITOR handle = nullptr;
    /// The monitor and its work area, in pixels of the virtual desktop.
    QRect full;
    QRect work;
    unsigned int flags = 0;

    bool isPrimary() const { return (flags & MONITORINFOF_PRIMARY) != 0; }
};

bool operator==(const Monitor& a, const Monitor& b);

/// All monitors of which a host library may hold a handle.
std::vector<Monitor> monitors();

/// "Monitor 1" for the first one of `list`; "null" for null; the address for one that is not there.
QString monitorName(const std::vector<Monitor>& list, HMONITOR handle);

/// As an address, such as "0x55d0c0".
QString handleText(const void* handle);
