#pragma once

#include "platform/PlatformResourceManagerImp.h"

#include <QString>

/// The graphics handles that host libraries may use now, in their order. Not those of a type whose
/// upper bit is set, which no operation of the service accepts.
std::vector<GraphicsObject> graphicsHandles();

/// The type with its name: "0 (image)".
QString typeText(const GraphicsObject& handle);

/// What the handle stands for, as the service describes it: an image's size and format, a brush's
/// colour, the address of anything else.
QString objectText(const GraphicsObject& handle);
