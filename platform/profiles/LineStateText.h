#pragma once

#include "platform/profiles/LineReading.h"

/// A reading in one or two words, for the margin.
QString shortText(const LineReading& reading);
/// Every text that shortText() has.
QStringList shortTexts();
/// A reading in sentences.
QString longText(const LineReading& reading, ProfileFamily family);
