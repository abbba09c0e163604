#include "ctl/InputDevice.h"

#include "ctl/Failure.h"
#include "ctl/Interruption.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isStandardInput(const QString& name)
{
    return name.isEmpty() || name == QLatin1String("-");
}

// A pipe that nobody writes to yet would be waited for here, where no signal ends the wait for
// sure; when it is open, reading waits for it.
int opened(const QString& name)
{
    if (isStandardInput(name))
        return STDIN_FILENO;
    const int descriptor =
        ::open(QFile::encodeName(name).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor >= 0)
        fcntl(descriptor, F_SETFL, 0);
    return descriptor;
}

} // namespace

InputDevice::InputDevice(const QString& name)
    : m_name(isStandardInput(name) ? tr("The standard input") : name),
      m_descriptor(opened(name)),
      m_isOwn(!isStandardInput(name))
{
    if (m_descriptor < 0)
        throw Failure(tr("%1 cannot be read: %2").arg(m_name, qt_error_string(errno)));
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

InputDevice::InputDevice(int descriptor)
    : m_name(tr("The descriptor %1").arg(descriptor)), m_descriptor(descriptor), m_isOwn(false)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

InputDevice::~InputDevice()
{
    if (m_isOwn)
        ::close(m_descriptor);
}

qint64 InputDevice::size() const
{
    struct stat status = {};
    return fstat(m_descriptor, &status) == 0 ? qint64{status.st_size} : 0;
}

qint64 InputDevice::readData(char* data, qint64 size)
{
    const qint64 count = Interruption::read(m_descriptor, data, size);
    if (count < 0)
        setErrorString(qt_error_string(errno));
    return count;
}

qint64 InputDevice::writeData(const char* /*data*/, qint64 /*size*/)
{
    return -1;
}
