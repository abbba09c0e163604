// The real executable when the X server that it draws on ends.

#include "tests/app/startup/Application.h"
#include "tests/support/ChildProcess.h"

#include <gtest/gtest.h>

namespace {

constexpr int timeout = 120000;

// A server of the test's own, which can be killed.
class LostServer
{
public:
    // The name of the display; empty where the server does not start.
    QString start()
    {
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24"});
        while (!m_server.canReadLine() && m_server.waitForReadyRead(timeout)) {
        }
        const QByteArray number = m_server.readLine().trimmed();
        return number.isEmpty() ? QString() : ':' + QString::fromLatin1(number);
    }

    void kill()
    {
        m_server.kill();
        EXPECT_TRUE(m_server.waitForFinished(timeout));
    }

private:
    ChildProcess m_server;
};

bool waitForWindow(const QString& display)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    ChildProcess search;
    search.setProcessEnvironment(environment);
    search.start("xdotool", {"search", "--sync", "--onlyvisible", "--name", "Quayside"});
    return search.waitForFinished(timeout) && search.exitCode() == 0;
}

TEST(DisplayLost, EndsTheProgramWithAStatus)
{
    LostServer server;
    const QString display = server.start();
    ASSERT_FALSE(display.isEmpty());
    Application application;
    application.expectMessages(); // Qt says that the connection broke
    application.useStandIn();
    application.setEnvironment("DISPLAY", display);
    ASSERT_TRUE(application.start());
    ASSERT_TRUE(waitForWindow(display));
    server.kill();
    ASSERT_TRUE(application.finish()) << "not by a signal";
    EXPECT_NE(0, application.status());
}

} // namespace
