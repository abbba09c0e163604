#pragma once

#include "platform/WindowsTypes.h"

#include <QString>

/// Attribute bits as a number and by their Windows names, such as "0x91 READONLY DIRECTORY NORMAL".
QString attributesText(DWORD attributes);
