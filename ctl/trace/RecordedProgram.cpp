#include "ctl/trace/RecordedProgram.h"

#include "ctl/Failure.h"

#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

void set(const char* name, const QByteArray& value)
{
    if (value.isEmpty())
        unsetenv(name);
    else
        setenv(name, value.constData(), 1);
}

QByteArray yes(bool isSet)
{
    return isSet ? QByteArray("1") : QByteArray();
}

// The reason that the child has sent; 0 where the program has taken its place.
int failureFrom(int descriptor)
{
    int reason = 0;
    ssize_t count = -1;
    do
        count = read(descriptor, &reason, sizeof reason);
    while (count < 0 && errno == EINTR);
    close(descriptor);
    return count == sizeof reason ? reason : 0;
}

} // namespace

void RecordedProgram::start(const QStringList& words)
{
    int failures[2] = {-1, -1};
    if (pipe2(failures, O_CLOEXEC) != 0)
        throw Failure(QString::fromLocal8Bit(std::strerror(errno)));
    m_process = fork();
    if (m_process == 0)
        become(words, failures[1]);
    const int reason = m_process < 0 ? errno : 0;
    close(failures[1]);
    const int sent = failureFrom(failures[0]);
    if (reason == 0 && sent == 0)
        return;
    throw Failure(tr("%1 cannot be started: %2")
                      .arg(words.first(), QString::fromLocal8Bit(std::strerror(reason + sent))));
}

// In the child: signals that are ignored here are not to be ignored there.
void RecordedProgram::become(const QStringList& words, int failures) const
{
    for (const int number : {SIGPIPE, SIGXFSZ})
        std::signal(number, SIG_DFL);
    prepareEnvironment();
    std::vector<QByteArray> bytes;
    bytes.reserve(static_cast<std::size_t>(words.size()));
    for (const QString& word : words)
        bytes.push_back(QFile::encodeName(word));
    std::vector<char*> pointers;
    pointers.reserve(bytes.size() + 1);
    for (QByteArray& word : bytes)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    execvp(pointers.front(), pointers.data());
    const int reason = errno;
    static_cast<void>(write(failures, &reason, sizeof reason) < 0);
    _exit(127);
}

void RecordedProgram::prepareEnvironment() const
{
    QByteArray preloaded = QFile::encodeName(m_library);
    if (!qEnvironmentVariableIsEmpty(trace::variable::preload))
        preloaded += ':' + qgetenv(trace::variable::preload);
    set(trace::variable::preload, preloaded);
    set(trace::variable::file, QByteArray::fromStdString(m_options.file));
    set(trace::variable::all, yes(m_options.hasAllCallers));
    set(trace::variable::hide, yes(m_options.hidesData));
    set(trace::variable::text, m_options.longestText
                                   ? QByteArray::number(qulonglong{*m_options.longestText})
                                   : QByteArray());
    set(trace::variable::calls, QByteArray::fromStdString(m_options.selection));
}

std::optional<int> RecordedProgram::wait(int milliseconds)
{
    constexpr int signalBase = 128; // as shells tell it
    int status = 0;
    if (waitpid(m_process, &status, WNOHANG) == 0) {
        static_cast<void>(poll(nullptr, 0, milliseconds));
        return std::nullopt;
    }
    return WIFSIGNALED(status) ? signalBase + WTERMSIG(status) : WEXITSTATUS(status);
}

void RecordedProgram::signal(int number) const
{
    kill(m_process, number);
}
