#include "app/Version.h"

const char* programVersion()
{
    return QUAYSIDE_VERSION;
}
