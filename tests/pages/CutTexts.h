#pragma once

#include <QStringList>

class QWidget;

/// The texts below `root` that are cut off, elided or outside of it where they stand: labels,
/// buttons, titles of groups and tabs, headers, combo boxes, lamps and what stands in empty fields.
QStringList cutTexts(const QWidget& root);
