#pragma once

#include <QString>

#include <functional>

/// The lines that one change leaves in the log. A change of very many entries tells the first of
/// them and how many there are more: what is undone and redone a few times would fill the log
/// otherwise.
class LimitedLines
{
public:
    using Log = std::function<void(const QString& line)>;

    static constexpr int most = 1000;

    /// Nothing is logged where `log` is empty.
    explicit LimitedLines(Log log) : m_log(std::move(log)) {}
    /// Ends them: a change that has been cancelled has left lines out, too.
    ~LimitedLines() { end(); }

    LimitedLines(const LimitedLines&) = delete;
    LimitedLines& operator=(const LimitedLines&) = delete;

    /// Logs what `line()` returns, or counts it without asking for it.
    template <typename Line>
    void add(const Line& line)
    {
        if (m_log && m_count++ < most)
            m_log(line());
    }

    /// Tells how many lines have been left out, if any, and begins to count anew.
    void end();

private:
    Log m_log;
    int m_count = 0;
};
