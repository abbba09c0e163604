#pragma once

#include "platform/PlatformServicesImp.h"

#include <memory>
#include <new>

/// Makes the services anew. Fonts are never taken out again: a test that has this begins with a
/// service that knows none.
struct FreshServices
{
    FreshServices()
    {
        std::destroy_at(&g_PlatformServices);
        new (&g_PlatformServices) PlatformServicesImp;
    }
};
