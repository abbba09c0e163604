#pragma once

#include <QColor>

class QWidget;

/// The colour of a text that recedes behind the others of its table, in the application's palette
/// of the moment. In every palette it is fainter than those and can still be read.
QColor faintText();

/// Gives the placeholders in a window and in its controls that colour. Call it again when the
/// palette has changed.
void makePlaceholdersFaint(QWidget& window);
