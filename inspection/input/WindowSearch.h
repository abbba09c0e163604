#pragma once

#include "platform/WindowsTypes.h"

#include <QString>

/// What FindWindowW answers for these names, of which an empty one stands for null.
HWND findWindow(const QString& className, const QString& windowName);

/// Whether a window was found and, where not, what to look at, in the language of the interface.
QString searchRemark(HWND found);
