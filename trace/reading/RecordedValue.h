#pragma once

#include <QString>

#include <string>
#include <vector>

namespace trace {

struct RecordedMember;

/// A value of a recording, as JSON has it: members keep their order, numbers all their digits.
struct RecordedValue
{
    enum class Kind
    {
        Absent,
        Null,
        False,
        True,
        Number,
        Text,
        Array,
        Object
    };

    /// What a value means, as its form tells.
    enum class Role
    {
        Absent,
        Null,
        Plain,    ///< a number, a truth value, or a text without more
        Text,     ///< "text", and "length" where it is shortened
        Handle,   ///< "handle"
        Data,     ///< "data" in hexadecimal digits, and "length"
        Hidden,   ///< "hidden", the length of data that was left out
        Flags,    ///< "flags" and "names"
        Pointer,  ///< "pointer", and "text" where an array is there
        Callback, ///< "callback"
        Record    ///< an object or an array of other values
    };

    Kind kind = Kind::Absent;
    QString text;                        ///< of a text or a number
    std::vector<RecordedMember> members; ///< of an object or an array

    bool isAbsent() const { return kind == Kind::Absent; }
    bool isNull() const { return kind == Kind::Null; }
    Role role() const;
    /// The member of that name; an absent value where there is none.
    const RecordedValue& member(const char* name) const;
    /// The text of the member of that name; empty where there is none.
    const QString& textOf(const char* name) const { return member(name).text; }
    /// The number, of 64 bits with or without a sign; `fallback` for everything else.
    qint64 toInteger(qint64 fallback = 0) const;

    friend bool operator==(const RecordedValue& a, const RecordedValue& b);
    friend bool operator!=(const RecordedValue& a, const RecordedValue& b) { return !(a == b); }
};

/// A member of an object; of an array an element, without a name.
struct RecordedMember
{
    std::string name;
    RecordedValue value;
};

} // namespace trace
