#include "widgets/QProgressIndicator.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int noTimer = -1;
constexpr int defaultSide = 20;
constexpr int spokeCount = 12;
constexpr int degreesPerSpoke = 30;
constexpr int overlayAlpha = 150;

// A spoke that points up from the middle of the wheel.
struct Spoke
{
    QRect shape;
    int radius = 0; // of its corners
};

// Intended: every step truncates toward zero, so a small wheel may have no extent at all.
Spoke spokeFor(const QSize& area)
{
    const int side = static_cast<int>(std::min(area.width(), area.height()) * 0.3);
    const double half = (side - 1) * 0.5;
    const int outer = static_cast<int>(half);
    const int inner = static_cast<int>(half * 0.38);
    const int height = outer - inner;
    const int width = static_cast<int>(height * (side <= 32 ? 0.35 : 0.23));
    return {QRect(static_cast<int>(-width * 0.5), -outer, width, height), width / 2};
}

// Single precision decides how the fading rounds: in double, two of the spokes differ by one step.
QColor faded(QColor color, int index)
{
    color.setAlphaF(1.0F - static_cast<float>(index) / static_cast<float>(spokeCount));
    return color;
}

} // namespace

QProgressIndicator::QProgressIndicator(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_DeleteOnClose);
    resize(parent ? parent->size() : QSize(defaultSide, defaultSide));
}

bool QProgressIndicator::isAnimated() const
{
    return m_timerId != noTimer;
}

QSize QProgressIndicator::sizeHint() const
{
    return {defaultSide, defaultSide};
}

int QProgressIndicator::heightForWidth(int w) const
{
    return w;
}

void QProgressIndicator::startAnimation()
{
    m_angle = 0;
    if (!isAnimated())
        m_timerId = startTimer(m_delay);
}

void QProgressIndicator::stopAnimation()
{
    if (isAnimated())
        killTimer(m_timerId);
    m_timerId = noTimer;
    update();
}

void QProgressIndicator::setAnimationDelay(int delay)
{
    const bool animated = isAnimated();
    if (animated)
        killTimer(m_timerId);
    m_delay = delay;
    if (animated)
        m_timerId = startTimer(m_delay);
}

void QProgressIndicator::setDisplayedWhenStopped(bool state)
{
    m_displayedWhenStopped = state;
    update();
}

void QProgressIndicator::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void QProgressIndicator::timerEvent(QTimerEvent* /*event*/)
{
    m_angle = (m_angle + degreesPerSpoke) % 360;
    update();
}

// The overlay is filled rather than drawn from a pixmap: the same pixels, and far cheaper on a
// screen of high resolution.
void QProgressIndicator::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_displayedWhenStopped && !isAnimated())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor(0, 0, 0, overlayAlpha));
    painter.setPen(Qt::NoPen);
    const Spoke spoke = spokeFor(size());
    for (int i = 0; i < spokeCount; ++i) {
        painter.setBrush(faded(m_color, i));
        painter.save();
        painter.translate(rect().center());
        painter.rotate(static_cast<float>(m_angle - i * degreesPerSpoke));
        painter.drawRoundedRect(spoke.shape, spoke.radius, spoke.radius, Qt::AbsoluteSize);
        painter.restore();
    }
}
