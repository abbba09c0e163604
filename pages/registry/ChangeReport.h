#pragma once

#include "window/Page.h"

/// Reports a change of the store: as a warning, with the reason, where it will be lost.
void reportChange(Page& page, Page::Report kind, const QString& text);
