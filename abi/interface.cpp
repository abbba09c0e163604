// The library whose types abi/ records: it mentions the services object, and through it all
// interfaces, and passes every record that crosses them. It is compiled for the record alone and
// never runs.

#include "host/HostLibraries.h"
#include "platform/IPlatformServices.h"

IPlatformServices* recordedServices(IPlatformServices* services)
{
    return services;
}
