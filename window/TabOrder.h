#pragma once

class QWidget;

/// The control of the window that Tab leads to from the one that has the keyboard, or Shift+Tab
/// where `next` is false: through the rail, the page, the page's footer and the status line, around
/// and around. Null where there is none.
QWidget* tabNeighbour(QWidget& window, bool next);
