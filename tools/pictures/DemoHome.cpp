#include "tools/pictures/DemoHome.h"

#include "app/ApplicationLog.h"
#include "host/HostLibraries.h"
#include "tools/pictures/DemoRecording.h"

#include <QDateTime>
#include <QFile>
#include <QSettings>

#include <ctime>

namespace {

const QString home = QStringLiteral("/tmp/quayside-demo");

// Every state that a line can have: comment, before a header, replaced, no "=", two "=".
constexpr char profile[] = "Revision=7\n"
                           "; written by the installer\n"
                           "[Scanner]\n"
                           "Port=COM1\n"
                           "Speed=9600\n"
                           "\n"
                           "[Network]\n"
                           "Host=crane-07\n"
                           "Query=site=north&unit=7\n"
                           "Retry\n"
                           "Mask=255.255.255.0\n"
                           "Mask=255.255.0.0\n"
                           "\n"
                           "[Scanner]\n"
                           "Port=COM3\n"
                           "Label=Quay, \"north\"\n";

constexpr char log[] =
    "2026-03-02 07:58:40 : === Start logging ===\n"
    "[INFO] 2026-03-02 07:58:40 : Host library /opt/quayside/lib/libKdPlatformBase.so, settings "
    "store /home/field/.local/share/quayside/registry.ini\n"
    "[INFO] 2026-03-02 07:58:41 : Page registry\n"
    "[INFO] 2026-03-02 08:03:12 : Page profiles\n"
    "[WARNING] 2026-03-02 08:03:19 : There is no such file: both families read it as empty. "
    "Writing a value creates it.\n"
    "[INFO] 2026-03-02 08:03:44 : 7 values, 4 of them read differently.\n"
    "[INFO] 2026-03-02 08:10:05 : Page files\n"
    "[ERROR] 2026-03-02 08:10:21 : The service finds nothing for a pattern without a directory, "
    "whatever the working directory holds. Put one before it, such as ./*.csv.\n"
    "[INFO] 2026-03-02 08:10:30 : 7 found. Size and times are reported for the first one only, and "
    "only if it is a file.\n"
    "[INFO] 2026-03-02 08:14:02 : Page crypto\n"
    "[ERROR] 2026-03-02 08:14:31 : Wrong pass phrase, or damaged cipher text: the padding does "
    "not match, and the library gets an empty text.\n"
    "[INFO] 2026-03-02 08:14:58 : Bytes decrypted: 112.\n"
    "2026-03-02 08:20:00 : === End logging ===\n";

struct StoredEntry
{
    const char* path;
    const char* text;
};

constexpr StoredEntry entries[] = {
    {"Harbour/Crane/Axis 1/Gain", "1$250"},
    {"Harbour/Crane/Axis 2/Gain", "1$275"},
    {"Harbour/Crane/Baud rate", "1$115200"},
    {"Harbour/Crane/Calibration", "4$0001a0ff7f3c"},
    {"Harbour/Crane/Installed", "2$132539328000000000"},
    {"Harbour/Crane/Model", "5$HC-40 \xe7\xa0\x81\xe5\xa4\xb4"},
    {"Harbour/Crane/Operator", "Maria Lund"},
    {"Harbour/Crane/Password", "3$c2VjcmV0"},
    {"Harbour/Crane/Retries", "1$three"},
    {"Harbour/Crane/Serial", "5$HC-40-00731"},
    {"Harbour/Scanner/Port", "5$COM3"},
    {"Harbour/Scanner/Timeout", "1$1500"},
    {"Software/Reports/Folder", "5$/srv/reports"},
    {"Software/Reports/Language", "1$2052"},
    {"System/Locale", "5$zh-CN"},
};

void write(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("%s cannot be written", qPrintable(path));
}

} // namespace

DemoHome::DemoHome()
{
    QDir(home).removeRecursively();
    if (!QDir().mkpath(file(QStringLiteral("orders/archive"))))
        qFatal("%s cannot be made", qPrintable(home));
    QFile::setPermissions(home, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.toUtf8());
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME",
                                 "XDG_STATE_HOME", "TMPDIR", "LANGUAGE", "QT_STYLE_OVERRIDE"})
        qunsetenv(variable);
    tzset();
    write(file(QStringLiteral("scanner.ini")), profile);
    write(file(QStringLiteral("crane.trace")), demoRecording(home.toUtf8()));
    fillOrders();
}

DemoHome::~DemoHome()
{
    QDir(home).removeRecursively();
}

QString DemoHome::file(const QString& name)
{
    return home + QLatin1Char('/') + name;
}

void DemoHome::fillOrders()
{
    const QDateTime written(QDate(2026, 3, 2), QTime(8, 10, 21));
    for (const char* name : {"2026-02.csv", "2026-03.CSV", "Orders.xml", "README.TXT",
                             "labels.tar.gz", "\xe8\xae\xa2\xe5\x8d\x95.csv"}) {
        const QString path = file(QStringLiteral("orders/") + QString::fromUtf8(name));
        write(path, QByteArray(48213, 'x'));
        QFile made(path);
        made.open(QIODevice::ReadOnly);
        made.setFileTime(written, QFileDevice::FileModificationTime);
        made.setFileTime(written.addSecs(3600), QFileDevice::FileAccessTime);
    }
    QFile::setPermissions(file(QStringLiteral("orders/README.TXT")), QFile::ReadOwner);
}

void DemoHome::fillStore()
{
    for (const StoredEntry& entry : entries)
        g_globalSettings->setValue(QString::fromUtf8(entry.path), QString::fromUtf8(entry.text));
}

void DemoHome::fillLog()
{
    write(ApplicationLog::path(), log);
}
