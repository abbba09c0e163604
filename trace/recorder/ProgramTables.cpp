#include "trace/recorder/ProgramTables.h"

#include "trace/recorder/Modules.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

namespace recorder {

namespace {

using trace::Interface;

// A class as the C++ ABI writes its name: with the length in front.
struct TypeName
{
    Interface interface;
    std::string_view name;
};

constexpr TypeName typeNames[] = {
    {Interface::Services, "19PlatformServicesImp"},
    {Interface::UserInput, "27PlatformUserInputManagerImp"},
    {Interface::Directory, "27PlatformDirectoryManagerImp"},
    {Interface::Cursor, "24PlatformCursorManagerImp"},
    {Interface::Font, "22PlatformFontManagerImp"},
    {Interface::Resource, "26PlatformResourceManagerImp"},
    {Interface::Profile, "25PlatformProfileManagerImp"},
    {Interface::Message, "25PlatformMessageManagerImp"},
    {Interface::Register, "26PlatformRegisterManagerImp"},
};

using Word = std::uintptr_t;

// The address of this text with its terminator in what is never written; 0 where it is nowhere.
Word findText(const Module& program, std::string_view text)
{
    for (const Segment& segment : program.segments) {
        const auto* begin = reinterpret_cast<const char*>(segment.begin);
        const void* found = segment.isWritable ? nullptr
                                               : memmem(begin, segment.end - segment.begin,
                                                        text.data(), text.size() + 1);
        if (found)
            return reinterpret_cast<Word>(found);
    }
    return 0;
}

bool isCode(const Module& program, Word address)
{
    return std::any_of(program.segments.begin(), program.segments.end(), [=](const Segment& part) {
        return part.isExecutable && address >= part.begin && address < part.end;
    });
}

// The first place in the program's data that holds `word` and that `accept` takes; null: none.
template <typename Accept>
Word* findWord(const Module& program, Word word, Accept accept)
{
    for (const Segment& segment : program.segments) {
        if (!segment.isWritable)
            continue;
        // The word in front and the one behind have to be there too.
        auto* begin =
            reinterpret_cast<Word*>((segment.begin + 2 * sizeof(Word) - 1) & ~(sizeof(Word) - 1));
        auto* end = reinterpret_cast<Word*>(segment.end) - 1;
        for (Word* place = begin; place < end; ++place) {
            if (*place == word && accept(place))
                return place;
        }
    }
    return nullptr;
}

// A table: the offset to the whole object, which is 0, then the type, then the functions.
void** findTable(const Module& program, std::string_view typeName)
{
    const Word name = findText(program, typeName);
    if (name == 0)
        return nullptr;
    // A type is two words or more: the table of its own class, then its name.
    Word* const typeNamePlace = findWord(program, name, [](const Word*) { return true; });
    if (!typeNamePlace)
        return nullptr;
    const auto type = reinterpret_cast<Word>(typeNamePlace - 1);
    Word* const typePlace = findWord(program, type, [&program](const Word* place) {
        return place[-1] == 0 && isCode(program, place[1]);
    });
    return typePlace ? reinterpret_cast<void**>(typePlace + 1) : nullptr;
}

} // namespace

std::vector<ProgramTable> findProgramTables()
{
    const Module& program = Modules::instance().program();
    std::vector<ProgramTable> found;
    for (const TypeName& type : typeNames) {
        if (void** slots = findTable(program, type.name))
            found.push_back({type.interface, slots});
    }
    return found;
}

} // namespace recorder
