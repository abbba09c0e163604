// Where the executable looks for libraries.

#include "tests/app/startup/Application.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

// The libraries that the executable names.
QStringList neededLibraries()
{
    ChildProcess readelf;
    readelf.start("readelf", {"-dW", Application::executable()});
    EXPECT_TRUE(readelf.waitForFinished());
    QStringList names;
    const QRegularExpression needed(R"(\(NEEDED\).*\[(.+)\])");
    for (const QByteArray& line : readelf.readAllStandardOutput().split('\n')) {
        const auto match = needed.match(QString::fromUtf8(line));
        if (match.hasMatch())
            names << match.captured(1);
    }
    return names;
}

// Whoever can put a file there would have code of his own run.
TEST(LibraryPaths, LeaveTheWorkingDirectoryOut)
{
    Application application;
    const QStringList libraries = neededLibraries();
    EXPECT_LT(2, libraries.size());
    for (const QString& name : libraries) {
        QFile file(application.folder() + '/' + name);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("no library");
    }
    ASSERT_TRUE(application.run());
    EXPECT_EQ(0, application.status());
}

} // namespace
