#pragma once

#include "platform/IPlatformServices.h"

/// Procedures of the callers that the services call.
namespace recorder::procedures {

/// A procedure that records its call and goes on to this one, with all its arguments as they are.
/// It stays good for as long as the process runs. Null for null; the procedure itself where so many
/// have been seen that there is no place for another.
IPlatformFontManager::EnumProcedure recording(IPlatformFontManager::EnumProcedure procedure);

} // namespace recorder::procedures
