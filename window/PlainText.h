#pragma once

#include <QString>

class QPlainTextEdit;

/// The text of an edit field as it was entered: `toPlainText` turns no-break spaces into spaces. A
/// line ends with a line feed.
QString textOf(const QPlainTextEdit& edit);
