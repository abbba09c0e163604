#pragma once

#include "platform/WindowsTypes.h"

#include <QPoint>
#include <QString>

#include <array>

/// A flag of MonitorFromPoint, which says what is answered for a point that no monitor holds.
struct MonitorFlag
{
    unsigned int value;
    /// Without the prefix MONITOR_.
    const char* name;
    const char* rule;

    /// What is answered with this flag, in the language of the interface.
    QString ruleText() const;
};

/// All flags, in the order of their values.
extern const std::array<MonitorFlag, 3> monitorFlags;

/// What MonitorFromPoint answers for a point of the virtual desktop; null for none.
HMONITOR monitorAt(const QPoint& point, unsigned int flags);
