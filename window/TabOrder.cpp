#include "window/TabOrder.h"

#include "window/PageFooter.h"
#include "window/PageRail.h"
#include "window/StatusLine.h"

#include <algorithm>
#include <vector>

namespace {

// The parts of the window in the order of their use, which is not that in which they are made.
enum Part
{
    Rail,
    Body,
    Footer,
    Status
};

Part partOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const PageRail*>(widget))
            return Rail;
        if (qobject_cast<const PageFooter*>(widget))
            return Footer;
        if (qobject_cast<const StatusLine*>(widget))
            return Status;
    }
    return Body;
}

bool takesTab(const QWidget& widget, const QWidget& window)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && !widget.focusProxy() &&
           widget.isEnabled() && widget.window() == &window && widget.isVisibleTo(&window);
}

std::vector<QWidget*> tabStops(QWidget& window)
{
    std::vector<QWidget*> stops;
    for (QWidget* each = window.nextInFocusChain(); each != &window;
         each = each->nextInFocusChain()) {
        if (each == window.focusWidget() || takesTab(*each, window))
            stops.push_back(each);
    }
    std::stable_sort(stops.begin(), stops.end(), [](const QWidget* one, const QWidget* other) {
        return partOf(one) < partOf(other);
    });
    return stops;
}

} // namespace

QWidget* tabNeighbour(QWidget& window, bool next)
{
    std::vector<QWidget*> stops = tabStops(window);
    if (stops.empty())
        return nullptr;
    if (!next)
        std::reverse(stops.begin(), stops.end());
    const auto at = std::find(stops.begin(), stops.end(), window.focusWidget());
    return at == stops.end() || at + 1 == stops.end() ? stops.front() : *(at + 1);
}
