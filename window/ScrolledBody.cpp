#include "window/ScrolledBody.h"

#include <QApplication>
#include <QVBoxLayout>

namespace {

// The scroll area asks for the height that the widgets would like at a width; the least that they
// need is what it may not go below.
class Body : public QWidget
{
public:
    int heightForWidth(int width) const override { return layout()->minimumHeightForWidth(width); }
};

} // namespace

ScrolledBody::ScrolledBody(QVBoxLayout* layout, QWidget* parent) : QScrollArea(parent)
{
    layout->setContentsMargins(0, 0, 0, 0);
    auto* body = new Body;
    body->setLayout(layout);
    setWidget(body);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*before*/, const QWidget* now) { showFocus(now); });
}

ScrolledBody::~ScrolledBody()
{
    // The focus leaves with the widgets, when this is no more than a QWidget.
    disconnect(qApp, nullptr, this, nullptr);
}

QSize ScrolledBody::minimumSizeHint() const
{
    const int lines = 8; // what is left of a page on the lowest of windows can still be used
    return {0, fontMetrics().height() * lines};
}

void ScrolledBody::showFocus(const QWidget* focus)
{
    if (focus && widget()->isAncestorOf(focus))
        ensureWidgetVisible(const_cast<QWidget*>(focus));
}
