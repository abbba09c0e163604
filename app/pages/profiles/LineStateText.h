#pragma once

#include "app/pages/profiles/LineReading.h"
#include "app/pages/profiles/ProfileDocument.h"

/// A state in one or two words, for the margin.
QString shortText(LineState state);
/// A state in a sentence.
QString longText(LineState state, ProfileFamily family);
