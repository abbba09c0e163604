#pragma once

#include "app/pages/Page.h"

/// Why what is changed in the store will be lost, in words; empty when it is saved, and without a
/// store.
QString storeFault();

/// Reports a change of the store: as a warning, with the reason, where it will be lost.
void reportChange(Page& page, Page::Report kind, const QString& text);
