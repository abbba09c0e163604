#pragma once

class QTabWidget;

/// Puts the pages of the tabs onto the ground of the page itself, in line with what is above and
/// below them. Call it when the tabs are complete.
void arrangeTabs(QTabWidget& tabs);
