#pragma once

#include <QStackedWidget>
#include <QVariant>

class QPainter;
class QVariantAnimation;

/// A stack that changes its page with a horizontal slide. Pages are added, removed and read as in
/// any QStackedWidget; `currentIndex()` stays the old page until the slide has ended.
///
/// While a slide runs, each of the four change requests is ignored, but `setCurrentIndex` is not.
/// The stack paints nothing of its own between slides, so a frame set on it is never drawn.
class QAnimationStackedWidget : public QStackedWidget
{
    Q_OBJECT

public:
    /// Starts idle, with slides of 600 ms.
    explicit QAnimationStackedWidget(QWidget* parent = nullptr);

    /// Slides to the following page, which arrives from the right; from the last page to the first.
    /// A stack without pages ignores it.
    void next();

    /// Slides to the preceding page, which arrives from the left; from the first page to the last.
    /// A stack without pages ignores it.
    void forward();

    /// Slides to the page at `index`, which arrives from the right. Beware: the current index, or
    /// one that names no page, ends all further changes of page through the four requests.
    void nextTo(int index);

    /// Slides to the page at `index`, which arrives from the left; ignores the current index and
    /// one that names no page.
    void forwardTo(int index);

    /// Sets the length of the slides to come, in milliseconds; one that runs keeps its length.
    /// With 0, a slide ends at the next turn of the event loop. The value is not checked.
    void setDuration(int duration);

    /// Paints the two pages while a slide runs, and nothing otherwise.
    void paintEvent(QPaintEvent* event) override;

    /// Paints the leaving page at its own size; an index without a page paints nothing.
    void paintPrevious(QPainter& painter, int index);

    /// Gives the arriving page the stack's size and paints it; an index without a page paints
    /// nothing.
    void paintNext(QPainter& painter, int index);

    /// Takes the animation's value, the distance in pixels from the left edge to the line where the
    /// two pages meet.
    void slotValueChanged(const QVariant& value);

    /// Ends the slide: the target becomes the current page, and requests are accepted again.
    void slotAnimationFinished();

private:
    void slideTo(int index);
    double meetingLine() const;

    QVariantAnimation* m_animation; // Intended: never deleted, see the constructor.
    int m_duration = 600;
    int m_targetIndex = -1;
    bool m_animating = false;
    bool m_fromLeft = false;
    QVariant m_offset;
};
