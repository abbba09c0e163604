#include "tests/support/Display.h"

#include <QTest>
#include <QThread>
#include <QWidget>

Display::Display(const QStringList& arguments, Manager manager)
    : m_formerDisplay(qgetenv("DISPLAY"))
{
    m_server.setStandardErrorFile(QProcess::nullDevice());
    // Without -noreset the server starts afresh, and drops whoever is just connecting, each time
    // the last client leaves.
    m_server.start(QStringLiteral("Xvfb"),
                   QStringList{"-displayfd", "1", "-noreset", "-nolisten", "tcp"} + arguments);
    if (!m_server.waitForStarted() || !m_server.waitForReadyRead(20000))
        qFatal("Xvfb did not start");
    qputenv("DISPLAY", ":" + m_server.readLine().trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_XCB_GL_INTEGRATION", "none"); // nothing here draws with OpenGL, whose drivers leak
    if (manager == WithManager)
        startManager();
}

Display::~Display()
{
    for (ChildProcess* process : {&m_manager, &m_server}) {
        process->terminate();
        process->waitForFinished(5000);
    }
    if (m_formerDisplay.isNull())
        qunsetenv("DISPLAY");
    else
        qputenv("DISPLAY", m_formerDisplay);
}

void Display::startManager()
{
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start(QStringLiteral("openbox"), QStringList());
    if (!m_manager.waitForStarted())
        qFatal("openbox did not start");
    waitForManager();
}

// A window that is shown before the manager announces itself might never be managed.
void Display::waitForManager()
{
    ChildProcess query;
    query.setStandardErrorFile(QProcess::nullDevice());
    for (int attempt = 0; attempt < 200; ++attempt) {
        query.start(QStringLiteral("wmctrl"), {"-m"});
        if (query.waitForFinished() && query.exitCode() == 0)
            return;
        QThread::msleep(50);
    }
    qFatal("openbox does not answer");
}

bool Display::activate(const QWidget& window)
{
    const QStringList request{"windowactivate", QString::number(window.winId())};
    for (int attempt = 0; attempt < 40; ++attempt) {
        xdotool(request);
        if (QTest::qWaitFor([&window] { return window.isActiveWindow(); }, 500))
            return true;
    }
    return false;
}

bool Display::xdotool(const QStringList& arguments)
{
    ChildProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral("xdotool"), arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}
