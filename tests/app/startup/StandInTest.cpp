// The executable as it is delivered, with the stand-in, on a display with a window manager.

#include "tests/app/startup/Application.h"
#include "tests/support/Display.h"

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

namespace {

QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    return QString::fromUtf8(process.readAllStandardOutput());
}

// Closes the only window of the display as a user does; false when none appears.
bool closeWindow()
{
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 60000; QThread::msleep(50)) {
        const QString windows = outputOf("wmctrl", {"-l"});
        if (!windows.isEmpty())
            return QProcess::execute("wmctrl", {"-i", "-c", windows.section(' ', 0, 0)}) == 0;
    }
    return false;
}

TEST(Delivered, NamesTheStandInByItsSonameAlone)
{
    const QString dynamic = outputOf("readelf", {"-dW", Application::executable()});
    EXPECT_TRUE(dynamic.contains("[libKdPlatformBase.so]"));
}

TEST(Delivered, RunsWithTheStandInUntilItsWindowIsClosed)
{
    Application application;
    application.useStandIn();
    ASSERT_TRUE(application.start());
    ASSERT_TRUE(closeWindow());
    ASSERT_TRUE(application.finish());
    EXPECT_EQ(0, application.status());
}

} // namespace
