#include "tests/support/Display.h"

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
}

Display::~Display()
{
    for (QProcess* process : {&m_manager, &m_server}) {
        process->terminate();
        process->waitForFinished(5000);
    }
}

bool Display::xdotool(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("xdotool"), arguments) == 0;
}
