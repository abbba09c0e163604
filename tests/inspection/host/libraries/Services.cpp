// Takes the services object from the application's exports instead of being given it.

extern char g_PlatformServices[];

[[gnu::visibility("default")]] const char* servicesItself()
{
    return g_PlatformServices;
}
