#include <QtGlobal>

[[gnu::visibility("default")]] int GetCurrentOrbxLanguageId()
{
    return qEnvironmentVariableIntValue("HOST_LANGUAGE");
}
