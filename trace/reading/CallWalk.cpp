#include "trace/reading/CallWalk.h"

#include <QElapsedTimer>
#include <QLocale>

#include <utility>

namespace trace {

namespace {

constexpr qint64 batch = 64;      // calls between two looks at the clock
constexpr qint64 longestStep = 4; // milliseconds

} // namespace

CallWalk::CallWalk(TraceFile& file, Receiver receiver, qint64 first)
    : m_file(file), m_receiver(std::move(receiver)), m_next(first)
{
}

bool CallWalk::step()
{
    QElapsedTimer clock;
    clock.start();
    const std::vector<CallEntry>& calls = m_file.calls();
    for (std::size_t place = m_file.placeFrom(m_next); place < calls.size(); ++place) {
        if (++m_count % batch == 0 && clock.elapsed() >= longestStep)
            return true;
        m_next = calls[place].number + 1;
        m_receiver(calls[place]);
    }
    return false;
}

QString CallWalk::progress() const
{
    return QLocale().toString(m_count);
}

} // namespace trace
