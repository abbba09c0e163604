#include "inspection/OutputFile.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <unistd.h>

namespace {

// Opening such a name anew would lose the place in a file that the output is appended to, and would
// empty the file.
int descriptorOf(const QString& name)
{
    if (name == QLatin1String("/dev/stdout"))
        return STDOUT_FILENO;
    if (name == QLatin1String("/dev/stderr"))
        return STDERR_FILENO;
    static const QRegularExpression numbered(
        QStringLiteral("^(?:/dev/fd|/proc/self/fd)/([0-9]{1,9})$"));
    const QRegularExpressionMatch match = numbered.match(name);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

bool isReplaceable(const QString& name)
{
    const QFileInfo info(name);
    return !info.exists() || info.isFile();
}

} // namespace

OutputFile::OutputFile(const QString& name)
    : m_descriptor(descriptorOf(name)), m_isReplaced(m_descriptor < 0 && isReplaceable(name))
{
    if (m_isReplaced)
        m_file = std::make_unique<QSaveFile>(name);
    else
        m_file = std::make_unique<QFile>(name);
}

bool OutputFile::open()
{
    if (m_descriptor < 0)
        return m_file->open(QIODevice::WriteOnly);
    return static_cast<QFile&>(*m_file).open(m_descriptor, QIODevice::WriteOnly);
}

bool OutputFile::commit()
{
    if (m_isReplaced)
        return static_cast<QSaveFile&>(*m_file).commit();
    return m_file->flush() && m_file->error() == QFileDevice::NoError;
}
