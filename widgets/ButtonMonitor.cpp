#include "widgets/ButtonMonitor.h"

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QPushButton>

#include <memory>

// Second of all static objects, after the services object.
[[gnu::init_priority(202)]] ButtonMonitor g_buttonMonitor;

namespace {

constexpr QRgb glowColor = qRgb(24, 90, 189);
constexpr qreal glowRadius = 15.0;

// A disabled button is left as it is in both directions. Intended: one that is disabled while it
// glows keeps its glow until it is enabled and the mouse has come and gone again.
void setGlow(QPushButton& button, bool on)
{
    if (button.testAttribute(Qt::WA_Disabled))
        return;
    if (!on) {
        button.setGraphicsEffect(nullptr);
        return;
    }
    auto effect = std::make_unique<QGraphicsDropShadowEffect>();
    effect->setBlurRadius(glowRadius);
    effect->setColor(glowColor);
    effect->setOffset(0, 0);
    button.setGraphicsEffect(effect.release());
}

} // namespace

ButtonMonitor::ButtonMonitor(QObject* parent) : QObject(parent) {}

bool ButtonMonitor::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = dynamic_cast<QPushButton*>(watched);
    if (button && event) {
        if (event->type() == QEvent::Enter)
            setGlow(*button, true);
        else if (event->type() == QEvent::Leave)
            setGlow(*button, false);
    }
    return QObject::eventFilter(watched, event);
}
