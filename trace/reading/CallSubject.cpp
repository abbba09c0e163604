#include "trace/reading/CallSubject.h"

#include "trace/operations/Operation.h"

#include <utility>

namespace trace {

namespace {

using Kind = CallSubject::Kind;
using Subject = std::optional<CallSubject>;

// A handle whose key is not known is an address.
Subject known(CallSubject subject)
{
    const bool isThere = subject.kind == Kind::Key
                             ? subject.place.startsWith(QLatin1String("HKEY_"))
                             : !subject.place.isEmpty();
    return isThere ? Subject(std::move(subject)) : Subject();
}

QString textOf(const Call& call, const char* name)
{
    return call.arguments.member(name).textOf("text");
}

Subject ofParameter(const Call& call, const Parameter& parameter, const AskedFor::PathOf& pathOf)
{
    const QString handle = call.arguments.member(parameter.name).textOf("handle");
    switch (parameter.role) {
    case Role::KeyHandle: return known({Kind::Key, pathOf(handle), {}});
    case Role::SearchHandle: {
        const QString pattern = pathOf(handle);
        return pattern == handle ? Subject() : known({Kind::Files, pattern, {}});
    }
    case Role::Text:
    case Role::NarrowText: break;
    default: return {};
    }
    if (parameter.name == QLatin1String("file"))
        return known(
            {Kind::Profile, textOf(call, "file"), {textOf(call, "section"), textOf(call, "key")}});
    if (parameter.name == QLatin1String("path"))
        return known({Kind::Files, textOf(call, "path"), {}});
    return {};
}

} // namespace

Subject CallSubject::of(const Call& call, const Operation* operation,
                        const AskedFor::PathOf& pathOf)
{
    const std::optional<AskedFor> asked = AskedFor::of(call, false, pathOf);
    if (asked && asked->kind != AskedFor::Kind::Entry)
        return of(asked->kind, asked->place, asked->name);
    for (const Parameter& parameter : operation ? operation->parameters : Rows<Parameter>()) {
        Subject subject = ofParameter(call, parameter, pathOf);
        if (subject)
            return subject;
    }
    return {};
}

Subject CallSubject::of(AskedFor::Kind kind, const QString& place, const QString& name)
{
    switch (kind) {
    case AskedFor::Kind::Key: return known({Kind::Key, place, {}});
    case AskedFor::Kind::Value: return known({Kind::Key, place, {name}});
    case AskedFor::Kind::Entry: return known({Kind::Profile, place, {}});
    case AskedFor::Kind::File: break;
    }
    return known({Kind::Files, place, {}});
}

Subject CallSubject::of(const HandleTable::Entry& handle)
{
    switch (handle.kind) {
    case HandleTable::Kind::Key: return known({Kind::Key, handle.description, {}});
    case HandleTable::Kind::Search: return known({Kind::Files, handle.description, {}});
    default: return {};
    }
}

} // namespace trace
