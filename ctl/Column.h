#pragma once

#include <QtGlobal>

/// A column of the records that commands print: the name that scripts know, and the title for
/// people, a text of the class Output.
struct Column
{
    const char* name;
    const char* title;
};

namespace Columns {

constexpr Column kind{"kind", QT_TRANSLATE_NOOP("Output", "Kind")};
constexpr Column key{"key", QT_TRANSLATE_NOOP("Output", "Key")};
constexpr Column name{"name", QT_TRANSLATE_NOOP("Output", "Name")};
constexpr Column type{"type", QT_TRANSLATE_NOOP("Output", "Type")};
constexpr Column data{"data", QT_TRANSLATE_NOOP("Output", "Data")};
constexpr Column stored{"stored", QT_TRANSLATE_NOOP("Output", "Stored text")};
constexpr Column remark{"remark", QT_TRANSLATE_NOOP("Output", "Remark")};
constexpr Column change{"change", QT_TRANSLATE_NOOP("Output", "Change")};
constexpr Column before{"before", QT_TRANSLATE_NOOP("Output", "Before")};
constexpr Column after{"after", QT_TRANSLATE_NOOP("Output", "After")};
constexpr Column line{"line", QT_TRANSLATE_NOOP("Output", "Line")};
constexpr Column outcome{"outcome", QT_TRANSLATE_NOOP("Output", "Outcome")};

constexpr Column file{"file", QT_TRANSLATE_NOOP("Output", "File")};
constexpr Column section{"section", QT_TRANSLATE_NOOP("Output", "Section")};
constexpr Column family{"family", QT_TRANSLATE_NOOP("Output", "Family")};
constexpr Column found{"found", QT_TRANSLATE_NOOP("Output", "Found by")};
constexpr Column wide{"wide", QT_TRANSLATE_NOOP("Output", "Wide")};
constexpr Column narrow{"narrow", QT_TRANSLATE_NOOP("Output", "Narrow")};
constexpr Column reason{"reason", QT_TRANSLATE_NOOP("Output", "Reason")};
constexpr Column difference{"difference", QT_TRANSLATE_NOOP("Output", "Difference")};

constexpr Column attributes{"attributes", QT_TRANSLATE_NOOP("Output", "Attributes")};
constexpr Column size{"size", QT_TRANSLATE_NOOP("Output", "Size")};
constexpr Column created{"created", QT_TRANSLATE_NOOP("Output", "Created")};
constexpr Column read{"read", QT_TRANSLATE_NOOP("Output", "Read")};
constexpr Column written{"written", QT_TRANSLATE_NOOP("Output", "Written")};
constexpr Column question{"question", QT_TRANSLATE_NOOP("Output", "Question")};
constexpr Column answer{"answer", QT_TRANSLATE_NOOP("Output", "Answer")};
constexpr Column face{"face", QT_TRANSLATE_NOOP("Output", "Face")};
constexpr Column fullName{"fullName", QT_TRANSLATE_NOOP("Output", "Full name")};
constexpr Column style{"style", QT_TRANSLATE_NOOP("Output", "Style")};
constexpr Column charSet{"charSet", QT_TRANSLATE_NOOP("Output", "Character set")};
constexpr Column weight{"weight", QT_TRANSLATE_NOOP("Output", "Weight")};
constexpr Column italic{"italic", QT_TRANSLATE_NOOP("Output", "Italic")};
constexpr Column installed{"installed", QT_TRANSLATE_NOOP("Output", "Installed")};
constexpr Column monitor{"monitor", QT_TRANSLATE_NOOP("Output", "Monitor")};
constexpr Column full{"full", QT_TRANSLATE_NOOP("Output", "Full area")};
constexpr Column work{"work", QT_TRANSLATE_NOOP("Output", "Work area")};
constexpr Column primary{"primary", QT_TRANSLATE_NOOP("Output", "Primary")};
constexpr Column index{"index", QT_TRANSLATE_NOOP("Output", "Index")};
constexpr Column value{"value", QT_TRANSLATE_NOOP("Output", "Value")};
constexpr Column code{"code", QT_TRANSLATE_NOOP("Output", "Code")};
constexpr Column known{"known", QT_TRANSLATE_NOOP("Output", "Known")};
constexpr Column state{"state", QT_TRANSLATE_NOOP("Output", "State")};

constexpr Column digest{"digest", QT_TRANSLATE_NOOP("Output", "Digest")};

} // namespace Columns
