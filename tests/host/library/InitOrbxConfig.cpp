#include <QString>

#include <cstdio>

[[gnu::visibility("default")]] int InitOrbxConfig(const wchar_t* language)
{
    std::printf("init=%s\n", QString::fromWCharArray(language).toUtf8().constData());
    return qEnvironmentVariableIntValue("HOST_INIT_RESULT");
}
