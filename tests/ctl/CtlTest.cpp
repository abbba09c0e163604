#include "tests/ctl/CtlTest.h"

#include "tests/support/ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int longestRun = 120000; // milliseconds

} // namespace

QStringList CtlTest::program()
{
    QStringList line = {qEnvironmentVariable("QUAYSIDE_CTL_PROGRAM", QStringLiteral(QUAYSIDE_CTL))};
    if (isEmulated())
        line.prepend(QStringLiteral(QUAYSIDE_EMULATOR));
    return line;
}

CtlTest::Result CtlTest::run(const QStringList& arguments, const QByteArray& input) const
{
    QStringList line = program() + arguments;
    ChildProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), path(QStringLiteral("data")));
    environment.insert(QStringLiteral("CTL"), program().join(QLatin1Char(' ')));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    const bool isShell = arguments.value(0) == QLatin1String("-c");
    process.start(isShell ? QStringLiteral("/bin/bash") : line.takeFirst(),
                  isShell ? arguments : line);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(longestRun));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

CtlTest::Result CtlTest::shell(const QString& script) const
{
    return run({QStringLiteral("-c"), script});
}

void CtlTest::write(const QString& name, const QByteArray& bytes) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray CtlTest::read(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
