#include "inspection/fonts/CharacterSets.h"

#include <algorithm>
#include <iterator>

namespace {

using WritingSystem = QFontDatabase::WritingSystem;

struct CharacterSet
{
    BYTE code;
    const char* name;
    /// Any where the set stands for none of its own.
    WritingSystem writingSystem;
};

constexpr CharacterSet sets[] = {
    {ANSI_CHARSET, "ANSI_CHARSET", WritingSystem::Latin},
    {DEFAULT_CHARSET, "DEFAULT_CHARSET", WritingSystem::Any},
    {SYMBOL_CHARSET, "SYMBOL_CHARSET", WritingSystem::Symbol},
    {MAC_CHARSET, "MAC_CHARSET", WritingSystem::Any},
    {SHIFTJIS_CHARSET, "SHIFTJIS_CHARSET", WritingSystem::Japanese},
    {HANGUL_CHARSET, "HANGUL_CHARSET", WritingSystem::Korean},
    {JOHAB_CHARSET, "JOHAB_CHARSET", WritingSystem::Any},
    {GB2312_CHARSET, "GB2312_CHARSET", WritingSystem::SimplifiedChinese},
    {CHINESEBIG5_CHARSET, "CHINESEBIG5_CHARSET", WritingSystem::TraditionalChinese},
    {GREEK_CHARSET, "GREEK_CHARSET", WritingSystem::Greek},
    {TURKISH_CHARSET, "TURKISH_CHARSET", WritingSystem::Any},
    {VIETNAMESE_CHARSET, "VIETNAMESE_CHARSET", WritingSystem::Vietnamese},
    {HEBREW_CHARSET, "HEBREW_CHARSET", WritingSystem::Hebrew},
    {ARABIC_CHARSET, "ARABIC_CHARSET", WritingSystem::Arabic},
    {BALTIC_CHARSET, "BALTIC_CHARSET", WritingSystem::Any},
    {RUSSIAN_CHARSET, "RUSSIAN_CHARSET", WritingSystem::Cyrillic},
    {THAI_CHARSET, "THAI_CHARSET", WritingSystem::Thai},
    {EASTEUROPE_CHARSET, "EASTEUROPE_CHARSET", WritingSystem::Any},
    {OEM_CHARSET, "OEM_CHARSET", WritingSystem::Any},
};

const CharacterSet* find(BYTE code)
{
    const auto* found = std::find_if(std::begin(sets), std::end(sets),
                                     [code](const CharacterSet& set) { return set.code == code; });
    return found == std::end(sets) ? nullptr : found;
}

} // namespace

std::vector<BYTE> CharacterSets::codes()
{
    std::vector<BYTE> codes;
    for (const CharacterSet& set : sets)
        codes.push_back(set.code);
    return codes;
}

QString CharacterSets::title(BYTE code)
{
    const CharacterSet* set = find(code);
    const QString number = QString::number(code);
    return set ? QStringLiteral("%1 (%2)").arg(QLatin1String(set->name), number) : number;
}

std::optional<BYTE> CharacterSets::fromWritingSystem(QFontDatabase::WritingSystem system)
{
    for (const CharacterSet& set : sets) {
        if (set.writingSystem == system && system != WritingSystem::Any)
            return set.code;
    }
    return std::nullopt;
}

QString CharacterSets::sample(BYTE code)
{
    const CharacterSet* set = find(code);
    const bool own = set && set->writingSystem != WritingSystem::Any;
    return QFontDatabase::writingSystemSample(own ? set->writingSystem : WritingSystem::Latin);
}
