#include "trace/reading/RecordedValue.h"

#include <algorithm>

namespace trace {

namespace {

using Role = RecordedValue::Role;

struct RoleName
{
    const char* member;
    Role role;
};

constexpr RoleName roleNames[] = {{"text", Role::Text},        {"handle", Role::Handle},
                                  {"data", Role::Data},        {"hidden", Role::Hidden},
                                  {"flags", Role::Flags},      {"pointer", Role::Pointer},
                                  {"callback", Role::Callback}};

// The member that tells the role comes first, so that a field of a record, which may have any
// name, is not taken for it as long as another one stands before.
Role roleOfObject(const std::vector<RecordedMember>& members)
{
    if (members.empty())
        return Role::Record;
    for (const RoleName& name : roleNames) {
        if (members.front().name == name.member)
            return name.role;
    }
    return Role::Record;
}

} // namespace

RecordedValue::Role RecordedValue::role() const
{
    switch (kind) {
    case Kind::Absent: return Role::Absent;
    case Kind::Null: return Role::Null;
    case Kind::Object: return roleOfObject(members);
    case Kind::Array: return Role::Record;
    default: return Role::Plain;
    }
}

const RecordedValue& RecordedValue::member(const char* name) const
{
    static const RecordedValue absent;
    const auto found = std::find_if(members.begin(), members.end(),
                                    [name](const RecordedMember& m) { return m.name == name; });
    return found == members.end() ? absent : found->value;
}

qint64 RecordedValue::toInteger(qint64 fallback) const
{
    if (kind != Kind::Number)
        return fallback;
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (isNumber)
        return number;
    const quint64 large = text.toULongLong(&isNumber);
    return isNumber ? static_cast<qint64>(large) : fallback;
}

bool operator==(const RecordedValue& a, const RecordedValue& b)
{
    return a.kind == b.kind && a.text == b.text &&
           std::equal(a.members.begin(), a.members.end(), b.members.begin(), b.members.end(),
                      [](const RecordedMember& x, const RecordedMember& y) {
                          return x.name == y.name && x.value == y.value;
                      });
}

} // namespace trace
