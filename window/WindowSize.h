#pragma once

#include <QRect>
#include <QSize>

/// The smallest window, in pixels at 100 %: with title bar and panel it fits a screen of 800 x 600,
/// and one of 1920 x 1080 at 200 %.
constexpr QSize smallestWindow{780, 460};

/// The size of a window at first, without its frame: `wanted`, or less, so that it stands with its
/// frame in the `available` part of the `desktop` when it has been centred on all of that, frame
/// not counted. Never smaller than the smallest window. `titleBar` and `edge` estimate the frame.
QSize firstWindowSize(const QSize& wanted, const QRect& desktop, const QRect& available,
                      int titleBar, int edge);
