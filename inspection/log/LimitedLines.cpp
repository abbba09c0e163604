#include "inspection/log/LimitedLines.h"

#include <utility>

// Not translated, as the lines before it.
void LimitedLines::end()
{
    const int leftOut = std::exchange(m_count, 0) - most;
    if (leftOut > 0)
        m_log(QStringLiteral("and %1 more entries").arg(leftOut));
}
