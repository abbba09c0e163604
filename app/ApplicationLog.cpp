#include "app/ApplicationLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

// A device in the field runs for years: the file before last is dropped.
constexpr qint64 largestFile = 4LL * 1024 * 1024;

QString stateFolder()
{
    const QString folder = QString::fromLocal8Bit(qgetenv("XDG_STATE_HOME"));
    return QDir::isAbsolutePath(folder) ? folder
                                        : QDir::homePath() + QStringLiteral("/.local/state");
}

std::string preparedPath()
{
    const QString path = ApplicationLog::path();
    QDir().mkpath(QFileInfo(path).path());
    if (QFileInfo(path).size() > largestFile) {
        const QString old = path + QStringLiteral(".1");
        QFile::remove(old);
        QFile::rename(path, old);
    }
    return QFile::encodeName(path).toStdString();
}

// A line end in a text, such as from a file's name, would begin what passes for a further entry.
QString inOneLine(QString text)
{
    const QChar sign(0x21B5);
    return text.replace(QLatin1String("\r\n"), QString(sign))
        .replace(QLatin1Char('\n'), sign)
        .replace(QLatin1Char('\r'), sign);
}

} // namespace

ApplicationLog& ApplicationLog::instance()
{
    static ApplicationLog log;
    return log;
}

QString ApplicationLog::path()
{
    return stateFolder() + QLatin1Char('/') + QCoreApplication::applicationName() +
           QStringLiteral("/quayside.log");
}

bool ApplicationLog::isWritable()
{
    instance(); // makes the file
    return QFileInfo(path()).isWritable();
}

ApplicationLog::ApplicationLog() : m_logger(Logger::file, Logger::debug, preparedPath()) {}

void ApplicationLog::write(Logger::log_level level, const QString& text)
{
    m_logger.output(inOneLine(text).toStdString(), level);
    emit written();
}

void logInfo(const QString& text)
{
    ApplicationLog::instance().write(Logger::info, text);
}
