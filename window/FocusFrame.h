#pragma once

#include <QColor>

class QPainter;
class QRect;
class QWidget;

/// The colour that says where the keyboard is: that of selections, or one beside it where a palette
/// has selections that hardly differ from the window.
QColor focusColor();

/// Paints the frame that says that `widget` has the keyboard along the inside of `rect`: in every
/// style, whether the focus came by keyboard or by mouse.
void paintFocusFrame(QPainter& painter, const QWidget& widget, const QRect& rect);
