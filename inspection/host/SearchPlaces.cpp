#include "inspection/host/SearchPlaces.h"

#include <QDir>
#include <QFile>

#include <cstring>

namespace {

#if defined(__aarch64__)
constexpr char platformName[] = "aarch64";
#else
constexpr char platformName[] = "x86_64";
#endif

QString ownFolder()
{
    return QStringLiteral("lib/%1-linux-gnu").arg(QLatin1String(platformName));
}

// What stands for $LIB: it depends on how the distribution has built its dynamic loader.
QString libraryFolder()
{
    const bool isOwn = QDir(QStringLiteral("/usr/") + ownFolder()).exists();
    return isOwn ? ownFolder() : QStringLiteral("lib64");
}

QString expanded(QString folder, const QString& origin)
{
    const QString names[] = {"ORIGIN", "LIB", "PLATFORM"};
    const QString values[] = {origin, libraryFolder(), QLatin1String(platformName)};
    for (int i = 0; i < 3; ++i) {
        folder.replace(QStringLiteral("${%1}").arg(names[i]), values[i]);
        folder.replace(QStringLiteral("$") + names[i], values[i]);
    }
    return folder.isEmpty() ? QStringLiteral(".") : folder;
}

} // namespace

SearchPlaces SearchPlaces::ofThisSystem()
{
    SearchPlaces places;
    places.libraryPath = qgetenv("LD_LIBRARY_PATH");
    places.cacheFile = QStringLiteral("/etc/ld.so.cache");
    for (const QString& folder : {ownFolder(), QStringLiteral("lib64"), QStringLiteral("lib")})
        places.defaultFolders << QLatin1Char('/') + folder << QStringLiteral("/usr/") + folder;
    return places;
}

QStringList searchFolders(const QByteArray& path, const char* separators, const QString& origin)
{
    QStringList folders;
    if (path.isEmpty())
        return folders;
    QByteArray folder;
    for (const char character : path + separators[0]) {
        if (std::strchr(separators, character)) {
            folders << expanded(QFile::decodeName(folder), origin);
            folder.clear();
        } else {
            folder += character;
        }
    }
    return folders;
}
