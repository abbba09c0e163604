#include "inspection/profiles/LineDifference.h"

#include "inspection/profiles/CommonRuns.h"

#include <unordered_map>

namespace {

// Gives equal lines the same number.
class LineNumbers
{
public:
    std::vector<int> of(const ByteLines& lines)
    {
        std::vector<int> numbers;
        numbers.reserve(static_cast<std::size_t>(lines.count()));
        for (int line = 0; line < lines.count(); ++line)
            numbers.push_back(m_kinds.emplace(lines.at(line), kinds()).first->second);
        return numbers;
    }
    int kinds() const { return static_cast<int>(m_kinds.size()); }

private:
    std::unordered_map<std::string_view, int> m_kinds;
};

} // namespace

LineDifference::LineDifference(const QByteArray& before, const QByteArray& after)
    : m_before(before), m_after(after)
{
    LineNumbers numbers;
    const std::vector<int> kindsBefore = numbers.of(m_before);
    const std::vector<int> kindsAfter = numbers.of(m_after);
    const CommonRuns common(kindsBefore, kindsAfter, numbers.kinds());
    int doneBefore = 0;
    int doneAfter = 0;
    for (const CommonRuns::Run& run : common.runs()) {
        addHunk(doneBefore, run.before, doneAfter, run.after);
        doneBefore = run.before + run.count;
        doneAfter = run.after + run.count;
    }
    addHunk(doneBefore, m_before.count(), doneAfter, m_after.count());
}

void LineDifference::addHunk(int before, int beforeEnd, int after, int afterEnd)
{
    if (before < beforeEnd || after < afterEnd)
        m_hunks.push_back({before, beforeEnd - before, after, afterEnd - after});
}

int LineDifference::removed() const
{
    int count = 0;
    for (const Hunk& hunk : m_hunks)
        count += hunk.removed;
    return count;
}

int LineDifference::added() const
{
    int count = 0;
    for (const Hunk& hunk : m_hunks)
        count += hunk.added;
    return count;
}
