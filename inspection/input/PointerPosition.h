#pragma once

#include <QPoint>
#include <QString>

/// What GetCursorPos answers, in pixels of the virtual desktop.
QPoint pointerPosition();

/// "12, 34".
QString pointText(const QPoint& point);
