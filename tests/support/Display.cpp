#include "tests/support/Display.h"

#include <QThread>

Display::Display(const QString& screen, bool manager)
{
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("Xvfb"),
                   {"-displayfd", "1", "-screen", "0", screen, "-nolisten", "tcp"});
    if (!m_server.waitForStarted() || !m_server.waitForReadyRead(20000))
        qFatal("Xvfb did not start");
    const QByteArray display = ":" + m_server.readLine().trimmed();
    qputenv("DISPLAY", display);
    qputenv("QT_QPA_PLATFORM", "xcb");
    if (!manager)
        return;
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start(QStringLiteral("openbox"), QStringList());
    if (!m_manager.waitForStarted())
        qFatal("openbox did not start");
    waitForManager();
}

Display::~Display()
{
    for (QProcess* process : {&m_manager, &m_server}) {
        process->terminate();
        process->waitForFinished(5000);
    }
}

// A window that is shown before the manager announces itself might never be managed.
void Display::waitForManager()
{
    QProcess query;
    query.setStandardErrorFile(QProcess::nullDevice());
    for (int attempt = 0; attempt < 200; ++attempt) {
        query.start(QStringLiteral("wmctrl"), {"-m"});
        if (query.waitForFinished() && query.exitCode() == 0)
            return;
        QThread::msleep(50);
    }
    qFatal("openbox does not answer");
}

bool Display::xdotool(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("xdotool"), arguments) == 0;
}
