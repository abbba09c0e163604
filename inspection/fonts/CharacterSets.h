#pragma once

#include "platform/WindowsTypes.h"

#include <QFontDatabase>

#include <optional>
#include <vector>

/// The character sets of font records.
namespace CharacterSets {

/// All that have a name, in the order of their codes.
std::vector<BYTE> codes();

/// The Windows name with the code, such as "GREEK_CHARSET (161)"; the code alone where it has none.
QString title(BYTE code);

/// The set in which fonts for a writing system are registered; nothing where there is none.
std::optional<BYTE> fromWritingSystem(QFontDatabase::WritingSystem system);

/// A line that shows a font's characters.
QString sample(BYTE code);

} // namespace CharacterSets
