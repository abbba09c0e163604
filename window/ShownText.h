#pragma once

#include <QString>

class QPlainTextEdit;

/// A tool tip that shows `text` as it stands, also where it looks like markup.
QString plainToolTip(const QString& text);

/// The text of an edit field as it was entered: `toPlainText` turns no-break spaces into spaces. A
/// line ends with a line feed.
QString textOf(const QPlainTextEdit& edit);

/// `caption` without its mnemonic and its colon: what an assistive tool reads out. Chinese captions
/// carry the mnemonic in brackets behind the words.
QString withoutMnemonic(const QString& caption);

/// `text` with the middle of every word left out that is too long for a line of the narrowest page.
/// A label wraps between words only: such a word, as a name that was typed, would be cut off by its
/// edge and take the label's minimum width with it.
QString withoutLongWords(const QString& text);
