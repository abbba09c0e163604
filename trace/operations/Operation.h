#pragma once

#include <cstddef>
#include <cstdint>

/// What a row of the table of operations says: recorder, reader, player and documentation are made
/// from these rows, and none of them knows an operation by its name.
namespace trace {

/// Constant rows, which lie somewhere else.
template <typename T>
struct Rows
{
    const T* first = nullptr;
    std::size_t count = 0;

    constexpr Rows() = default;
    template <std::size_t N>
    constexpr Rows(const T (&rows)[N]) : first(rows), count(N) // NOLINT: rows stand for themselves
    {
    }
    constexpr const T* begin() const { return first; }
    constexpr const T* end() const { return first + count; }
    constexpr std::size_t size() const { return count; }
    constexpr const T& operator[](std::size_t index) const { return first[index]; }
};

/// A Windows name for some bits of a number: it applies where the bits of `mask` are `value`.
struct BitName
{
    const char* name;
    std::uint32_t mask;
    std::uint32_t value;
};

/// What a parameter, a field or a result means, and so how it is read and written down.
enum class Role : unsigned char
{
    None,             ///< a result that is not there
    Number,           ///< a number with its sign
    Unsigned,         ///< a number without a sign
    Choice,           ///< one of several named numbers
    Flags,            ///< named bits
    Text,             ///< wide text with a terminator, read by the service
    NarrowText,       ///< UTF-8 text with a terminator, read by the service
    UnreadText,       ///< wide text that the service never looks at: it may be anything
    UnreadNarrowText, ///< narrow text that the service never looks at
    String,           ///< the wide string of the interfaces, passed or returned by value
    Data,             ///< bytes: as many as `size` says, meant as the type beside it says
    Record,           ///< a record that the service reads
    RecordValue,      ///< a record that is passed by value
    KeyHandle,        ///< a predefined root, or a key that was opened
    SearchHandle,     ///< a directory search; all bits set for none
    ObjectHandle,     ///< a graphics object
    WindowHandle,
    MonitorHandle,
    CursorHandle,
    ModuleHandle,
    Pointer,  ///< an address of no further meaning
    Callback, ///< a function of the caller's
    Manager,  ///< a manager of the services object
    // What a pointer is for that the service writes through.
    TextOut,       ///< wide text into a buffer
    NarrowTextOut, ///< UTF-8 text into a buffer
    TextsOut,      ///< several wide texts, each with a terminator, and one more terminator
    TextInOut,     ///< a wide text that is changed in its place
    StringOut,     ///< the wide string of the interfaces, by reference
    DataOut,       ///< bytes into a buffer
    NumberOut,     ///< a number
    ChoiceOut,     ///< one of several named numbers
    SizeInOut,     ///< the size of a buffer, which becomes the size of what was written
    RecordOut,     ///< a record
    KeyHandleOut,  ///< a key handle
    LostKeyOut,    ///< the key pointer by reference, which is left pointing at nothing
    Unwritten,     ///< a result that the service never writes, nor reads
};

/// How far the service wrote where a parameter points to. Nothing is ever read beyond that.
enum class Extent : unsigned char
{
    None,       ///< nothing is written
    Whole,      ///< the number, handle or string itself; all fields of a record
    FindFirst,  ///< a record's name and attributes, and the rest only for a regular file
    FindNext,   ///< a record's name and attributes alone
    Script,     ///< of a font record, the name of the script, for a character set that has one
    Result,     ///< as many units as the result says, without a terminator
    ResultCut,  ///< as many as the result says, but less than `size`; terminated where it fits
    ResultFull, ///< as many as the result says, but at most `size`; the address for a size of 0
    Size,       ///< as many units as the parameter `size` says afterwards, without a terminator
    Path,       ///< the first 256 characters, or the whole text and no terminator if it is longer
    Asked,      ///< no terminator, no size: only asking the service again tells
};

/// When the service wrote what `Extent` says.
enum class Written : unsigned char
{
    OnSuccess,  ///< where the result is no failure
    WhenOpened, ///< also where a key was not found, as a null handle
    WhenListed, ///< also where only the value could not be read: asking the service again tells
    Given,      ///< where no needed argument is null and no size is 0, whatever the result
};

/// What an argument or a result does to the life of a handle or an array.
enum class Life : unsigned char
{
    None,
    Begins, ///< the caller owns it from now on, unless it is the failure value
    Ends,   ///< the caller gives it back
};

/// A field of a record: `count` is more than 1 for text in the record itself.
struct Field
{
    const char* name;
    Role role;
    std::uint16_t offset; ///< bytes
    std::uint16_t size;   ///< bytes of one element
    std::uint16_t count = 1;
    Rows<BitName> names = {};
};

/// A parameter of an operation, in the order of the call.
struct Parameter
{
    const char* name;
    Role role;
    const char* size = nullptr; ///< the parameter that says how large the buffer is
    Extent extent = Extent::None;
    Written written = Written::OnSuccess;
    bool isNeeded = false; ///< with null here, nothing is done and nothing written
    bool isValue = false;  ///< what is kept in a store or a file: left out where values are hidden
    Life life = Life::None;
    Rows<BitName> names = {};
    Rows<Field> fields = {};
};

/// Which results of an operation mean that it failed.
enum class Failure : unsigned char
{
    Never,
    Zero,     ///< 0 or null
    NonZero,  ///< a status
    MinusOne, ///< all bits set
};

/// What an operation returns.
struct Result
{
    Role role;
    Failure failure = Failure::Never;
    Life life = Life::None;
    Rows<BitName> names = {};
};

/// An operation: what stands in a slot of an interface's virtual table.
struct Operation
{
    const char* name;
    Result result;
    Rows<Parameter> parameters = {};
    /// The operation is not supported: it has the same result for all arguments and writes nothing.
    bool isFixed = false;
    /// A destructor, which callers never use.
    bool isDestructor = false;
};

/// An interface: its operations in the order of its virtual table.
struct Manager
{
    const char* name; ///< "register" for what registerManager() returns
    Rows<Operation> operations;
};

} // namespace trace
