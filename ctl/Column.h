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

} // namespace Columns
