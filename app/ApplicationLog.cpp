#include "app/ApplicationLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>

namespace {

// A device in the field runs for years: the file before last is dropped.
constexpr qint64 largestFile = 4LL * 1024 * 1024;

QString stateFolder()
{
    const QString folder = QString::fromLocal8Bit(qgetenv("XDG_STATE_HOME"));
    return QDir::isAbsolutePath(folder) ? folder
                                        : QDir::homePath() + QStringLiteral("/.local/state");
}

// The name in the encoding of the file system.
QByteArray nativePath()
{
    return QFile::encodeName(ApplicationLog::path());
}

void putAside(const QString& path)
{
    const QString old = path + QStringLiteral(".1");
    QFile::remove(old);
    QFile::rename(path, old);
}

// The user's doings are nobody else's business: a logger by itself would make a file for all to
// read. A log that is there already stays, but for its permissions; what is no file keeps those
// too.
void makeFile()
{
    constexpr mode_t forTheUser = S_IRUSR | S_IWUSR;
    const int descriptor =
        ::open(nativePath().constData(), O_WRONLY | O_CREAT | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
               forTheUser);
    if (descriptor < 0)
        return;
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        fchmod(descriptor, status.st_mode & forTheUser);
    close(descriptor);
}

void prepare()
{
    const QString path = ApplicationLog::path();
    QDir().mkpath(QFileInfo(path).path());
    if (QFileInfo(path).size() > largestFile)
        putAside(path);
    makeFile();
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
    ApplicationLog& log = instance();
    if (!log.isInPlace())
        log.open();
    return QFileInfo(path()).isWritable();
}

ApplicationLog::ApplicationLog()
{
    open();
}

void ApplicationLog::open()
{
    m_logger.reset();
    prepare();
    m_file = {};
    if (stat(nativePath().constData(), &m_file) == 0 && S_ISFIFO(m_file.st_mode))
        return;
    m_logger = std::make_unique<Logger>(Logger::file, Logger::debug, nativePath().toStdString());
}

// Whether the name still leads to the file that the logger has opened.
bool ApplicationLog::isInPlace() const
{
    struct stat status = {};
    return stat(nativePath().constData(), &status) == 0 && status.st_dev == m_file.st_dev &&
           status.st_ino == m_file.st_ino;
}

void ApplicationLog::write(Logger::log_level level, const QString& text)
{
    if (!isInPlace())
        open();
    if (m_logger)
        m_logger->output(inOneLine(text).toStdString(), level);
    emit written();
}

void logInfo(const QString& text)
{
    ApplicationLog::instance().write(Logger::info, text);
}
