// The check against the dynamic loader of this system, on libraries that are there.

#include "inspection/host/HostCheck.h"
#include "inspection/host/LoadTrial.h"
#include "tests/inspection/host/HostFile.h"

#include <QDirIterator>
#include <QLibraryInfo>
#include <QSet>

#include <link.h>

namespace {

const QString thisProgram = QStringLiteral("/proc/self/exe");

QSet<QString> loadedPaths()
{
    QSet<QString> paths;
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* data) {
            const QString path = QFile::decodeName(info->dlpi_name);
            static_cast<QSet<QString>*>(data)->insert(QFileInfo(path).canonicalFilePath());
            return 0;
        },
        &paths);
    return paths;
}

TEST(SystemLibraries, AreFoundWhereTheLoaderHasFoundThem)
{
    ElfObjects objects;
    LoadScope scope(SearchPlaces::ofThisSystem(), objects);
    scope.load(nullptr, objects.at(QFileInfo(thisProgram).canonicalFilePath()));
    const QSet<QString> loaded = loadedPaths();
    EXPECT_LT(10, scope.needs().size());
    for (const NeededLibrary& need : scope.needs()) {
        ASSERT_TRUE(need.found.object) << need.name.constData();
        const QString path = QFileInfo(need.found.object->path).canonicalFilePath();
        EXPECT_TRUE(loaded.contains(path)) << path.toStdString();
    }
}

QStringList librariesOfQt()
{
    QStringList paths;
    QDirIterator plugins(QLibraryInfo::location(QLibraryInfo::PluginsPath), {"*.so"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (plugins.hasNext())
        paths << plugins.next();
    const QDir libraries(QLibraryInfo::location(QLibraryInfo::LibrariesPath));
    for (const QString& name : libraries.entryList({"libQt5*.so.5"}))
        paths << libraries.filePath(name);
    return paths;
}

TEST(SystemLibraries, AreCheckedAsTheLoaderDoes)
{
    HostCheck check(QFileInfo(thisProgram).canonicalFilePath());
    const QStringList libraries = librariesOfQt();
    EXPECT_LT(5, libraries.size());
    for (const QString& path : libraries) {
        const HostReport report = check.check(path);
        const LoadTrial trial = tryLoading(path);
        EXPECT_EQ(trial.outcome == LoadTrial::Outcome::Loaded, report.willLoad())
            << path.toStdString() << ": " << trial.text().toStdString() << '\n'
            << (report.findings.isEmpty() ? QString() : report.findings.first().text).toStdString();
    }
}

} // namespace
