#include "tests/support/HermeticEnvironment.h"

#include <QDir>

#include <ctime>

namespace {

// What would change how Qt looks, or whom it talks to.
constexpr const char* usersSettings[] = {
    "LANGUAGE",        "QT_STYLE_OVERRIDE",       "QT_QPA_PLATFORMTHEME",
    "QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR",
    "QT_FONT_DPI",     "QT_PLUGIN_PATH",          "DBUS_SESSION_BUS_ADDRESS"};

} // namespace

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
    tzset();
    for (const char* variable : usersSettings)
        qunsetenv(variable);
    const QByteArray scaleFactor = qgetenv("QUAYSIDE_TEST_SCALE_FACTOR");
    if (!scaleFactor.isEmpty())
        qputenv("QT_SCALE_FACTOR", scaleFactor);
}
