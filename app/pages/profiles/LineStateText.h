#pragma once

#include "app/pages/profiles/LineReading.h"
#include "app/pages/profiles/ProfileDocument.h"

/// A reading in one or two words, for the margin.
QString shortText(const LineReading& reading);
/// Every text that shortText() has.
QStringList shortTexts();
/// A reading in sentences.
QString longText(const LineReading& reading, ProfileFamily family);
