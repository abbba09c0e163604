#include "trace/recorder/Inquiry.h"

#include "platform/IPlatformServices.h"
#include "trace/Operations.h"
#include "trace/recorder/Memory.h"
#include "trace/recorder/ThreadState.h"

#include <algorithm>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace recorder {

namespace {

// While it lives, the thread's calls are the recorder's own.
class Asking
{
public:
    Asking() { ThreadState::current().isAsking = true; }
    ~Asking() { ThreadState::current().isAsking = false; }

    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
};

constexpr unsigned int largest = 0xFFFFFFFF;

template <typename T>
T argument(const std::uint64_t* words, std::size_t place)
{
    if constexpr (std::is_pointer_v<T>)
        return reinterpret_cast<T>(words[place]);
    else
        return static_cast<T>(words[place]);
}

} // namespace

/// What is asked for each operation; `words` are its arguments.
struct Questions
{
    Inquiry& answer;
    void* object;
    const std::uint64_t* words;
    std::uint64_t result;

    IPlatformRegisterManager& registry() const
    {
        return *static_cast<IPlatformRegisterManager*>(object);
    }
    HKEY key() const { return argument<HKEY>(words, 0); }

    void relativePath() const
    {
        constexpr std::size_t longest = 4096;
        if (words[0] == 0)
            return;
        std::vector<wchar_t> path(longest + 1);
        static_cast<IPlatformDirectoryManager*>(object)->PathRelativePathToW(
            path.data(), argument<const wchar_t*>(words, 1), argument<unsigned int>(words, 2),
            argument<const wchar_t*>(words, 3), argument<unsigned int>(words, 4));
        answer.m_textLength =
            static_cast<std::size_t>(std::find(path.begin(), path.end() - 1, L'\0') - path.begin());
    }

    // The path is changed in its place: a copy is, in room for what is cleared too.
    void pathWithSeparator() const
    {
        constexpr std::size_t cleared = 256;
        constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max() / sizeof(wchar_t);
        std::vector<wchar_t> copied;
        const auto path = memory::text(argument<const wchar_t*>(words, 0), unlimited, copied);
        if (!path.units || path.length < cleared - 1)
            return;
        std::wstring room(path.units, path.length);
        room.resize(path.length + cleared);
        static_cast<IPlatformDirectoryManager*>(object)->AddBackslash(room.data());
        answer.m_textLength = room.find(L'\0');
    }

    void keyName() const
    {
        unsigned int length = 0;
        if (registry().RegEnumKeyExW(key(), argument<unsigned int>(words, 1), nullptr, &length,
                                     nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS)
            answer.m_textLength = length;
    }

    // A name is written before the value is read. Its length changes from one that none has.
    void valueName() const
    {
        unsigned int length = largest;
        unsigned int size = largest;
        const unsigned int status =
            registry().RegEnumValueW(key(), argument<unsigned int>(words, 1), nullptr, &length,
                                     nullptr, nullptr, nullptr, &size);
        answer.m_isListed = length != largest;
        answer.m_textLength = length;
        if (status == ERROR_SUCCESS)
            answer.m_dataLength = size;
    }

    void valueSize() const
    {
        unsigned int size = largest;
        if (registry().RegQueryValueExW(key(), argument<const wchar_t*>(words, 1), nullptr, nullptr,
                                        nullptr, &size) == ERROR_SUCCESS)
            answer.m_dataLength = size;
    }

    void shortValueSize() const
    {
        int size = 0x7FFFFFFF;
        if (registry().RegQueryValueW(key(), argument<const wchar_t*>(words, 1), nullptr, &size) ==
            ERROR_SUCCESS)
            answer.m_dataLength = static_cast<std::size_t>(size);
    }

    bool hasSucceeded() const { return result == ERROR_SUCCESS; }
    bool isGiven(std::size_t place) const { return words[place] != 0; }
};

namespace {

// When an operation's outputs need a question, and which one.
struct Row
{
    const char* manager;
    const char* operation;
    bool isBefore;
    bool (*isNeeded)(const Questions&);
    void (Questions::*ask)() const;
};

const Row rows[] = {
    {"directory", "AddBackslash", true, [](const Questions& q) { return q.isGiven(0); },
     &Questions::pathWithSeparator},
    {"directory", "PathRelativePathToW", true, [](const Questions&) { return true; },
     &Questions::relativePath},
    {"register", "RegEnumKeyW", false,
     [](const Questions& q) { return q.hasSucceeded() && q.isGiven(2); }, &Questions::keyName},
    {"register", "RegEnumKeyExW", false,
     [](const Questions& q) { return q.hasSucceeded() && q.isGiven(2) && !q.isGiven(3); },
     &Questions::keyName},
    {"register", "RegEnumValueW", false,
     [](const Questions& q) {
         const bool hasName = q.isGiven(2) || q.isGiven(3);
         const bool hasLengths = q.isGiven(3) && (q.isGiven(7) || !q.isGiven(6));
         return q.key() && (q.hasSucceeded() ? !hasLengths : hasName);
     },
     &Questions::valueName},
    {"register", "RegQueryValueExW", false,
     [](const Questions& q) { return q.hasSucceeded() && q.isGiven(4) && !q.isGiven(5); },
     &Questions::valueSize},
    {"register", "RegQueryValueW", false,
     [](const Questions& q) { return q.hasSucceeded() && q.isGiven(2) && !q.isGiven(3); },
     &Questions::shortValueSize},
};

// The rows by the operations that they are of, found once.
const Row* rowOf(const trace::Operation& operation)
{
    static const auto* const operations = [] {
        auto* found = new std::vector<const trace::Operation*>;
        for (const Row& row : rows)
            found->push_back(trace::findOperation(row.manager, row.operation));
        return found;
    }();
    const auto found = std::find(operations->begin(), operations->end(), &operation);
    return found == operations->end() ? nullptr : &rows[found - operations->begin()];
}

void ask(const trace::Operation& operation, const Questions& questions, bool isBefore)
{
    const Row* row = rowOf(operation);
    if (!row || row->isBefore != isBefore || !row->isNeeded(questions))
        return;
    const Asking asking;
    (questions.*row->ask)();
}

} // namespace

void Inquiry::before(const trace::Operation& operation, void* object, const std::uint64_t* words)
{
    ask(operation, {*this, object, words, 0}, true);
}

void Inquiry::after(const trace::Operation& operation, void* object, const std::uint64_t* words,
                    std::uint64_t result)
{
    ask(operation, {*this, object, words, result}, false);
}

} // namespace recorder
