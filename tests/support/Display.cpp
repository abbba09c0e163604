#include "tests/support/Display.h"

Display::Display(const QStringList& arguments, Manager manager)
    : m_formerDisplay(qgetenv("DISPLAY"))
{
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("Xvfb"),
                   QStringList{"-displayfd", "1", "-nolisten", "tcp"} + arguments);
    if (!m_server.waitForStarted() || !m_server.waitForReadyRead(20000))
        qFatal("Xvfb did not start");
    qputenv("DISPLAY", ":" + m_server.readLine().trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    if (manager == WithManager)
        startManager();
}

Display::~Display()
{
    for (QProcess* process : {&m_manager, &m_server}) {
        process->terminate();
        process->waitForFinished(5000);
    }
    qputenv("DISPLAY", m_formerDisplay);
}

void Display::startManager()
{
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start(QStringLiteral("openbox"), QStringList());
    if (!m_manager.waitForStarted())
        qFatal("openbox did not start");
}

bool Display::xdotool(const QStringList& arguments)
{
    return QProcess::execute(QStringLiteral("xdotool"), arguments) == 0;
}
