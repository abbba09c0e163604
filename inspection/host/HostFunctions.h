#pragma once

#include "inspection/host/ElfObject.h"

/// What host libraries supply to the application.
struct HostFunction
{
    const char* name;   ///< as a programmer knows it
    const char* symbol; ///< as the application asks for it
    bool isOptional;    ///< true: the application does without it
};

/// All of them, in the order of the declarations.
const QVector<HostFunction>& hostFunctions();

/// The name under which the application offers its services object.
extern const char servicesSymbol[];
