#pragma once

#include <QString>

/// A text of a profile for a cell: line feeds and tabs can be seen, and one that is too long to be
/// drawn in time ends with an ellipsis.
QString shownText(QString text);
