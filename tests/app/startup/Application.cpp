#include "tests/app/startup/Application.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

// Sanitized programs under an emulator or on a busy machine are slow to start.
constexpr int timeout = 120000;

// The offscreen platform says so of every window whose size hints change.
const QLatin1String offscreenLimit("This plugin does not support propagateSizeHints()");

} // namespace

Application::Application() : m_environment(QProcessEnvironment::systemEnvironment())
{
    setEnvironment(QStringLiteral("LD_LIBRARY_PATH"), QStringLiteral(QUAYSIDE_TEST_HOST_FOLDER));
    setEnvironment(QStringLiteral("HOST_STORE"), m_folder.filePath(QStringLiteral("store.ini")));
}

void Application::bringQtCatalogue() const
{
    const QDir folder(m_folder.path());
    folder.mkdir(QStringLiteral("translations"));
    QFile::copy(QStringLiteral(QUAYSIDE_QT_CATALOGUE),
                folder.filePath(QStringLiteral("translations/qt_zh_CN.qm")));
}

void Application::useStandIn()
{
    m_environment.remove(QStringLiteral("LD_LIBRARY_PATH"));
}

void Application::setEnvironment(const QString& name, const QString& value)
{
    m_environment.insert(name, value);
}

void Application::expectMessages()
{
    m_areMessagesExpected = true;
}

bool Application::start(const QStringList& arguments)
{
    const QString emulator = QStringLiteral(QUAYSIDE_EMULATOR);
    const QString program = emulator.isEmpty() ? executable() : emulator;
    const QStringList guest = emulator.isEmpty() ? QStringList() : QStringList{executable()};
    m_process.setProcessEnvironment(m_environment);
    m_process.setWorkingDirectory(m_folder.path());
    m_process.start(program, guest + arguments);
    return m_process.waitForStarted(timeout);
}

bool Application::finish()
{
    const bool ended = m_process.waitForFinished(timeout);
    m_output = QString::fromUtf8(m_process.readAllStandardOutput());
    m_errors = QString::fromUtf8(m_process.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    m_errors.removeAll(offscreenLimit);
    if (!m_errors.isEmpty() && !m_areMessagesExpected)
        ADD_FAILURE() << "unexpected messages:\n" << m_errors.join('\n').toStdString();
    m_status = m_process.exitCode();
    return ended && m_process.exitStatus() == QProcess::NormalExit;
}

bool Application::run(const QStringList& arguments)
{
    return start(arguments) && finish();
}

QStringList Application::values(const QString& key) const
{
    QStringList found;
    for (const QString& line : m_output.split(QLatin1Char('\n'))) {
        if (line.startsWith(key + QLatin1Char('=')))
            found << line.mid(key.size() + 1);
    }
    return found;
}

QString Application::executable()
{
    return QStringLiteral(QUAYSIDE_EXECUTABLE);
}
