#pragma once

#include <QString>

/// A tool tip that shows `text` as it stands, also where it looks like markup.
QString plainToolTip(const QString& text);
