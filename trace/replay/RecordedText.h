#pragma once

#include <QString>

#include <string>

/// Texts of a recording as they were in memory: what is no character is kept in it as a lone half
/// of a surrogate pair.
namespace replay::RecordedText {

std::wstring toWide(const QString& text);
std::string toNarrow(const QString& text);

/// How many units `toWide` gives.
qint64 wideLength(const QString& text);

} // namespace replay::RecordedText
