#include "tests/support/HermeticEnvironment.h"

#include <QDir>

#include <ctime>

HermeticEnvironment::HermeticEnvironment()
{
    const QDir home(m_home.path());
    const auto folder = [&home](const char* variable, const char* name) {
        home.mkpath(QLatin1String(name));
        qputenv(variable, home.filePath(QLatin1String(name)).toUtf8());
    };
    qputenv("HOME", home.path().toUtf8());
    folder("XDG_DATA_HOME", "data");
    folder("XDG_CONFIG_HOME", "config");
    folder("XDG_CACHE_HOME", "cache");
    folder("XDG_STATE_HOME", "state");
    folder("XDG_RUNTIME_DIR", "runtime");
    QFile::setPermissions(home.filePath("runtime"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    folder("TMPDIR", "tmp");
    qputenv("TZ", "Europe/Berlin");
    qputenv("LC_ALL", "C.UTF-8");
    qunsetenv("LANGUAGE");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    tzset();
}
