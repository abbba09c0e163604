#pragma once

#include "tools/pictures/PageDriver.h"

/// Ends the program where a scene is meant for a page that the catalogue does not have.
void checkScenes();

/// Does on the page in view what its picture is to show. A page without a scene of its own stays as
/// it has opened.
void arrangeScene(const QString& page, PageDriver& driver);
