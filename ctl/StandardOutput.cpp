#include "ctl/StandardOutput.h"

#include "ctl/Failure.h"

#include <cerrno>
#include <unistd.h>

namespace {

constexpr int largestBuffer = 64 * 1024;

} // namespace

StandardOutput::StandardOutput(Use use) : m_use(use)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

bool StandardOutput::isTerminal() const
{
    return isatty(STDOUT_FILENO) == 1;
}

void StandardOutput::put(const QByteArray& bytes)
{
    check(write(bytes) == bytes.size());
}

void StandardOutput::finish()
{
    check(flushBuffer());
}

void StandardOutput::check(bool good) const
{
    if (!good)
        throw Failure(tr("The standard output cannot be written: %1.").arg(errorString()));
}

qint64 StandardOutput::readData(char* /*data*/, qint64 /*size*/)
{
    return -1;
}

qint64 StandardOutput::writeData(const char* data, qint64 size)
{
    if (m_use == Use::Drop)
        return size;
    m_buffer.append(data, static_cast<int>(size));
    return m_buffer.size() < largestBuffer || flushBuffer() ? size : -1;
}

// What cannot be written is dropped: the next attempt would fail likewise, and be told again.
bool StandardOutput::flushBuffer()
{
    const QByteArray bytes = std::exchange(m_buffer, {});
    int at = 0;
    while (at < bytes.size()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.constData() + at,
                                        static_cast<std::size_t>(bytes.size() - at));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            setErrorString(qt_error_string(errno));
            return false;
        }
        at += static_cast<int>(written);
    }
    return true;
}
