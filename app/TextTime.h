#pragma once

#include <QString>
#include <QVector>

#include <ctime>

/// Reads a local date and time of the form 2024-02-29 10:00:00 and returns it as a time value.
/// The name notwithstanding, this parses. The blank stands for any white space, or none. Fields
/// that the text does not supply are 0; fields out of range are carried over as `mktime` does (30
/// February is 1 March). Returns -1 for a null text and for a time that `mktime` cannot represent.
time_t FormatTime(const wchar_t* text);

/// Cuts `text` into pieces of `length` UTF-16 units; the last one may be shorter.
/// An empty text, or a length that is not positive, gives no pieces.
QVector<QString> splitString(const QString& text, int length);
