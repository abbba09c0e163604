// The script that a newcomer types, on a machine that lacks packages.

#include "tests/cmake/ChildOutput.h"

#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// A machine with the programs that every system has, nothing installed, a user and no sudo.
class BareMachine
{
public:
    BareMachine()
    {
        for (const char* name :
             {"bash", "cat", "dirname", "dpkg", "env", "grep", "mktemp", "rm", "sed"})
            QFile::link(QStandardPaths::findExecutable(name), m_folder.filePath(name));
        add("id", "echo 1000");
        add("dpkg-query", "exit 1");
    }

    ChildResult run(const QStringList& arguments) const
    {
        return resultOf("/usr/bin/env", QStringList{"PATH=" + m_folder.path(), "bash",
                                                    QUAYSIDE_SOURCE_FOLDER "/dev"} +
                                            arguments);
    }

private:
    void add(const QString& name, const QByteArray& line) const
    {
        QFile script(m_folder.filePath(name));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n" + line + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    QTemporaryDir m_folder;
};

TEST(DevScript, PrintsTheLineForRootWhereThereIsNoSudo)
{
    const ChildResult result = BareMachine().run({"build"});
    EXPECT_EQ(1, result.status);
    const QStringList lines = result.output.trimmed().split('\n');
    EXPECT_EQ("This needs to be done once, as root:", lines.value(lines.size() - 2));
    EXPECT_TRUE(lines.last().startsWith(
        "apt-get update && apt-get install -y --no-install-recommends g++ cmake"))
        << result.output.toStdString();
}

TEST(DevScript, KnowsTheNamesOfBenchmarksBeforeItInstallsAnything)
{
    const ChildResult result = BareMachine().run({"bench", "none"});
    EXPECT_EQ(2, result.status);
    EXPECT_TRUE(result.output.startsWith("No benchmark 'none'.")) << result.output.toStdString();
}

} // namespace
