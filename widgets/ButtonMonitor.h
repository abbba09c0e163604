#pragma once

#include <QObject>

/// Gives push buttons a blue glow while the mouse is over them. Install the global instance as an
/// event filter on a button; other widgets are left alone, and no event is ever swallowed.
class ButtonMonitor : public QObject
{
    Q_OBJECT

public:
    /// A monitor besides the global one, which has no parent. It watches nothing until it is
    /// installed.
    explicit ButtonMonitor(QObject* parent = nullptr);

    /// Sets the glow when the mouse enters an enabled push button, and clears it when it leaves
    /// one. Any other graphics effect of the button is lost. Does nothing when `watched` or
    /// `event` is null. Returns false.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// The one monitor of the process; exists before `main`.
extern ButtonMonitor g_buttonMonitor;
