#pragma once

#include <QColor>
#include <QWidget>

/// A wheel of twelve fading spokes that turns while something is busy. It darkens its whole area
/// and draws the wheel in the middle, less than a third of the smaller side across.
///
/// Made with a parent it takes the parent's size once, and so covers it; it does not follow later
/// resizing. Closing it deletes it.
class QProgressIndicator : public QWidget
{
    Q_OBJECT
    // Nobody is told of changes; clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int delay READ animationDelay WRITE setAnimationDelay)
    Q_PROPERTY(bool displayedWhenStopped READ isDisplayedWhenStopped WRITE setDisplayedWhenStopped)
    Q_PROPERTY(QColor color READ color WRITE setColor)

public:
    /// Starts stopped. Without a parent it is 20 x 20 pixels, which leaves no room for a wheel:
    /// only the darkened area shows.
    explicit QProgressIndicator(QWidget* parent = nullptr);

    /// The time between two steps of the wheel, in milliseconds; 40 at first.
    int animationDelay() const { return m_delay; }

    /// True while the wheel turns.
    bool isAnimated() const;

    /// True when the wheel and the darkening stay visible while stopped; false at first.
    bool isDisplayedWhenStopped() const { return m_displayedWhenStopped; }

    /// The colour of the spokes, black at first.
    const QColor& color() const { return m_color; }

    /// 20 x 20 pixels, whatever the size of the parent.
    QSize sizeHint() const override;

    /// `w` itself: the indicator is best square.
    int heightForWidth(int w) const override;

    /// Turns the wheel by one spoke, whichever timer the event comes from; it may be null.
    void timerEvent(QTimerEvent* event) override;

    /// Darkens the whole area and paints the wheel on it; while stopped only if that is wanted, see
    /// `setDisplayedWhenStopped`. The event is not looked at.
    void paintEvent(QPaintEvent* event) override;

public slots:
    /// Turns the wheel from its first position; while it turns already, only goes back to that.
    void startAnimation();

    /// Stops the wheel where it stands; it and the darkening go unless displayed when stopped.
    /// Harmless while stopped.
    void stopAnimation();

    /// Sets the time between two steps, in milliseconds. While the wheel turns the time starts
    /// anew, also when the value is the same. The value is not checked: with a negative one no
    /// timer runs, although `isAnimated()` is true, and the wheel stands still.
    void setAnimationDelay(int delay);

    /// Sets whether the wheel and the darkening stay visible while stopped.
    void setDisplayedWhenStopped(bool state);

    /// Sets the colour of the spokes; its alpha is not used.
    void setColor(const QColor& color);

private:
    int m_angle = 0; // degrees, of the leading spoke
    int m_timerId = -1;
    int m_delay = 40;
    bool m_displayedWhenStopped = false;
    QColor m_color = Qt::black;
};
