#pragma once

#include "window/PageContext.h"

/// Reports a change of the store: as a warning, with the reason, where it will be lost.
void reportChange(PageContext& page, PageContext::Report kind, const QString& text);

/// Reports `why` as the reason for which nothing was changed, unless it is empty; true when it did.
bool isRefused(PageContext& page, const QString& why);

/// Reports that nothing was changed, and returns true, where a host library finds another key for
/// this path: a change would be made in that one.
bool isKeyRefused(PageContext& page, const QString& path);
