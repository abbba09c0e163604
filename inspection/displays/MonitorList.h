#pragma once

#include "platform/WindowsTypes.h"

#include <QRect>
#include <QStringList>

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

/// Captions for one of `list`, from the longest, with the size and whether it is the primary one,
/// to the shortest, its number alone.
QStringList monitorCaptions(const std::vector<Monitor>& list, const Monitor& monitor);

/// Left, top, right and bottom as in the record: right and bottom are the last pixel inside.
QString edgesText(const QRect& rect);

/// "1 (primary)".
QString flagsText(const Monitor& monitor);

/// As an address, such as "0x55d0c0".
QString handleText(const void* handle);
