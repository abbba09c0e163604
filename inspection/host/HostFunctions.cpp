#include "inspection/host/HostFunctions.h"

const char servicesSymbol[] = "g_PlatformServices";

const QVector<HostFunction>& hostFunctions()
{
    static const QVector<HostFunction> functions = {
        {"setPlatformServices", "_Z19setPlatformServicesP17IPlatformServices", false},
        {"g_globalSettings", "g_globalSettings", false},
        {"updateCStringManagerData", "_Z24updateCStringManagerDataPKv", false},
        {"strcpy_s", "_Z8strcpy_sPciPKc", false},
        {"GetProcAddress", "_Z14GetProcAddressPvPKc", false},
        {"InitOrbxConfig", "_Z14InitOrbxConfigPKw", true},
        {"CreateConfigReg", "_Z15CreateConfigRegv", true},
        {"GetCurrentOrbxLanguageId", "_Z24GetCurrentOrbxLanguageIdv", true},
    };
    return functions;
}
