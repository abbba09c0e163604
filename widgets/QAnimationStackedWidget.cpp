#include "widgets/QAnimationStackedWidget.h"

#include <QPainter>
#include <QVariantAnimation>

namespace {

// The page as it looks now, visible or not. The pixmap has the resolution of the screen, and starts
// transparent so that a page without a background shows no stale pixels. grab() would not do: it
// misplaces the children when the stack itself is being rendered into something.
QPixmap pictureOf(QWidget& page, qreal pixelRatio)
{
    QPixmap picture(page.size() * pixelRatio);
    if (picture.isNull())
        return picture;
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    page.render(&picture);
    return picture;
}

// Draws the part of the picture that begins at `source`, at `target`, all in logical pixels.
// QPainter takes a width that is not positive for "all the rest", hence the test.
void drawSlice(QPainter& painter, const QPixmap& picture, double source, double target,
               double width, double height)
{
    if (width <= 0)
        return;
    const qreal ratio = picture.devicePixelRatio();
    painter.drawPixmap(QRectF(target, 0, width, height), picture,
                       QRectF(source * ratio, 0, width * ratio, height * ratio));
}

} // namespace

// Intended: the animation has no parent and is not deleted with the stack. The connections to
// member functions end with the stack, so an animation that is still running then does no harm. The
// end is queued, because a slide without duration finishes inside start(): the request that starts
// a slide never ends it too.
QAnimationStackedWidget::QAnimationStackedWidget(QWidget* parent)
    : QStackedWidget(parent), m_animation(new QVariantAnimation)
{
    connect(m_animation, &QVariantAnimation::valueChanged, this,
            &QAnimationStackedWidget::slotValueChanged);
    connect(m_animation, &QVariantAnimation::finished, this,
            &QAnimationStackedWidget::slotAnimationFinished, Qt::QueuedConnection);
}

void QAnimationStackedWidget::next()
{
    if (m_animating || count() == 0)
        return;
    m_fromLeft = false;
    m_animating = true;
    slideTo((currentIndex() + 1) % count());
}

void QAnimationStackedWidget::forward()
{
    if (m_animating || count() == 0)
        return;
    m_fromLeft = true;
    m_animating = true;
    const int current = currentIndex();
    slideTo(current == 0 ? count() - 1 : (current - 1) % count());
}

void QAnimationStackedWidget::nextTo(int index)
{
    if (m_animating)
        return;
    m_fromLeft = false;
    // Intended: set before the index is checked, so that a rejected index leaves it set for good.
    m_animating = true;
    if (index < 0 || index >= count() || index == currentIndex())
        return;
    slideTo(index);
}

void QAnimationStackedWidget::forwardTo(int index)
{
    if (m_animating)
        return;
    m_fromLeft = true;
    if (index >= count() || index == currentIndex() || index < 0)
        return;
    m_animating = true;
    slideTo(index);
}

void QAnimationStackedWidget::setDuration(int duration)
{
    m_duration = duration;
}

// Both values are ints, so that the pages meet on whole pixels.
void QAnimationStackedWidget::slideTo(int index)
{
    m_targetIndex = index;
    currentWidget()->hide();
    m_animation->setStartValue(m_fromLeft ? 0 : width());
    m_animation->setEndValue(m_fromLeft ? width() : 0);
    m_animation->setDuration(m_duration);
    m_animation->start();
}

// Intended: the base class is not called, so a frame is never drawn.
void QAnimationStackedWidget::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_animating)
        return;
    QPainter painter(this);
    paintPrevious(painter, currentIndex());
    paintNext(painter, m_targetIndex);
}

// On the edge of a device pixel: at a fractional scale the painter rounds each slice by itself, and
// the background would show between the two.
double QAnimationStackedWidget::meetingLine() const
{
    const double ratio = devicePixelRatioF();
    return qRound(m_offset.toDouble() * ratio) / ratio;
}

void QAnimationStackedWidget::paintPrevious(QPainter& painter, int index)
{
    QWidget* page = widget(index);
    if (!page)
        return;
    const int w = page->width();
    const int h = page->height();
    const QPixmap picture = pictureOf(*page, devicePixelRatioF());
    const double v = meetingLine();
    if (m_fromLeft)
        drawSlice(painter, picture, 0, v, w - v, h);
    else
        drawSlice(painter, picture, w - v, 0, v, h);
}

void QAnimationStackedWidget::paintNext(QPainter& painter, int index)
{
    QWidget* page = widget(index);
    if (!page)
        return;
    page->resize(size()); // it may never have been shown
    const QPixmap picture = pictureOf(*page, devicePixelRatioF());
    const double v = meetingLine();
    if (m_fromLeft)
        drawSlice(painter, picture, width() - v, 0, v, height());
    else
        drawSlice(painter, picture, 0, v, width() - v, height());
}

void QAnimationStackedWidget::slotValueChanged(const QVariant& value)
{
    m_offset = value;
    update();
}

// The flag goes first, so that whoever learns of the new page can start the next slide at once.
void QAnimationStackedWidget::slotAnimationFinished()
{
    m_animating = false;
    if (QWidget* page = currentWidget())
        page->show();
    setCurrentIndex(m_targetIndex);
}
