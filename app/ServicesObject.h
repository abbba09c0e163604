#pragma once

class IPlatformServices;

/// The services object that start-up hands to the host libraries: `g_PlatformServices`. Declared on
/// the lowest floor and defined beside the object, so that the start-up need not know the services.
IPlatformServices* servicesObject();
