#include "trace/reading/CallWalk.h"

#include <QElapsedTimer>
#include <QLocale>

#include <utility>

namespace trace {

namespace {

constexpr std::size_t batch = 64; // calls between two looks at the clock
constexpr qint64 longestStep = 4; // milliseconds

} // namespace

CallWalk::CallWalk(TraceFile& file, Receiver receiver)
    : m_file(file), m_receiver(std::move(receiver))
{
}

bool CallWalk::step()
{
    QElapsedTimer clock;
    clock.start();
    const std::vector<CallEntry>& calls = m_file.calls();
    while (m_next < calls.size()) {
        m_receiver(calls[m_next++]);
        if (m_next % batch == 0 && clock.elapsed() >= longestStep)
            break;
    }
    return m_next < calls.size();
}

QString CallWalk::progress() const
{
    return QLocale().toString(static_cast<qulonglong>(m_next));
}

} // namespace trace
