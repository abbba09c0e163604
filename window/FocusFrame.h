#pragma once

class QPainter;
class QRect;
class QWidget;

/// Paints the frame that says that `widget` has the keyboard along the inside of `rect`: in every
/// style, whether the focus came by keyboard or by mouse.
void paintFocusFrame(QPainter& painter, const QWidget& widget, const QRect& rect);
