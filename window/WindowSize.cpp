#include "window/WindowSize.h"

#include <algorithm>

namespace {

// The largest extent that fits between `from` and `to` after it has been centred on an extent of
// `whole`: `frame` follows it, or is in front of it.
int fitting(int whole, int from, int to, int frame)
{
    const int atStart = whole - 2 * from;
    const int atEnd = 2 * (to - frame) - whole;
    return std::min(atStart, atEnd);
}

} // namespace

QSize firstWindowSize(const QSize& wanted, const QRect& desktop, const QRect& available,
                      int titleBar, int edge)
{
    const QRect inside = available.translated(-desktop.topLeft());
    const QSize fits(
        fitting(desktop.width(), inside.left(), inside.left() + inside.width(), 2 * edge),
        fitting(desktop.height(), inside.top(), inside.top() + inside.height(), titleBar + edge));
    return wanted.boundedTo(available.size() * 0.9).boundedTo(fits).expandedTo(smallestWindow);
}
