#include "trace/reading/AskedFor.h"

#include "trace/reading/HandleTable.h"

#include <algorithm>

namespace trace {

namespace {

using Kind = AskedFor::Kind;

/// How an answer says that there is nothing.
enum class Absence
{
    Never,         ///< it says nothing about that
    Failure,       ///< a failure, unless something was written: a buffer was too small then
    FallbackText,  ///< the text that the caller gave for that case
    EmptyText,     ///< the narrow calls know no such text
    FallbackNumber ///< the number that the caller gave for that case
};

struct Row
{
    const char* operation;
    Kind kind;
    const char* name; ///< the parameter
    Absence absence;
};

constexpr Row rows[] = {
    {"RegOpenKeyExW", Kind::Key, "subKey", Absence::Failure},
    {"RegOpenKeyW", Kind::Key, "subKey", Absence::Failure},
    {"RegCreateKeyExW", Kind::Key, "subKey", Absence::Never},
    {"RegCreateKeyW", Kind::Key, "subKey", Absence::Never},
    {"RegDeleteKeyW", Kind::Key, "subKey", Absence::Never},
    {"RegDeleteKeyExW", Kind::Key, "subKey", Absence::Never},
    {"RegQueryValueExW", Kind::Value, "valueName", Absence::Failure},
    {"RegQueryValueW", Kind::Value, "valueName", Absence::Failure},
    {"RegSetValueExW", Kind::Value, "valueName", Absence::Never},
    {"RegDeleteValueW", Kind::Value, "valueName", Absence::Never},
    {"GetPrivateProfileStringW", Kind::Entry, "key", Absence::FallbackText},
    {"GetPrivateProfileStringA", Kind::Entry, "key", Absence::EmptyText},
    {"GetPrivateProfileIntW", Kind::Entry, "key", Absence::FallbackNumber},
    {"WritePrivateProfileStringW", Kind::Entry, "key", Absence::Never},
    {"WritePrivateProfileStringA", Kind::Entry, "key", Absence::Never},
    {"findFirstFile", Kind::File, "pattern", Absence::Failure},
    {"isFileExist", Kind::File, "path", Absence::Failure},
    {"GetFileAttributesW", Kind::File, "path", Absence::Never},
    {"SetFileAttributesW", Kind::File, "path", Absence::Never},
};

const Row* rowOf(const QString& operation)
{
    const auto* const found =
        std::find_if(std::begin(rows), std::end(rows), [&operation](const Row& row) {
            return operation == QLatin1String(row.operation);
        });
    return found == std::end(rows) ? nullptr : found;
}

const QString& argument(const Call& call, const char* name)
{
    return call.arguments.member(name).textOf("text");
}

// A handle that could not be made is written as null, and the real path of a file that is not there
// as the path that was asked for.
bool isAnyWritten(const Call& call)
{
    return std::any_of(
        call.outputs.members.begin(), call.outputs.members.end(), [](const RecordedMember& member) {
            return !member.value.isNull() && member.name != "result" && member.name != "realPath";
        });
}

// The text that was given for the case may have been cut to the size of the buffer.
bool isFallback(const Call& call, const QString& written)
{
    const QString& fallback = argument(call, "fallback");
    const qint64 room = call.arguments.member("size").toInteger() - 1;
    return written == fallback || (written.size() == room && fallback.startsWith(written));
}

bool isAbsentFrom(const Call& call, Absence absence, bool isFailure)
{
    const RecordedValue& buffer = call.outputs.member("buffer");
    switch (absence) {
    case Absence::Never: break;
    case Absence::Failure: return isFailure && !isAnyWritten(call);
    case Absence::FallbackText:
        return !buffer.isAbsent() && isFallback(call, buffer.textOf("text"));
    case Absence::EmptyText: return !buffer.isAbsent() && buffer.textOf("text").isEmpty();
    case Absence::FallbackNumber:
        return call.result.toInteger() == call.arguments.member("fallback").toInteger(-1);
    }
    return false;
}

QString keyOf(const Call& call, const AskedFor::PathOf& pathOf)
{
    const RecordedValue& key = call.arguments.member("key");
    return key.isNull() ? QStringLiteral("null") : pathOf(key.textOf("handle"));
}

// As the handles of the keys are described.
QString subKeyOf(const Call& call, const Row& row, const AskedFor::PathOf& pathOf)
{
    QString name = argument(call, row.name);
    name.replace(QLatin1Char('/'), QLatin1Char('\\'));
    const QString key = keyOf(call, pathOf);
    return name.isEmpty() ? key : key + QLatin1Char('\\') + name;
}

} // namespace

bool AskedFor::isConcerned(const QString& operation)
{
    return rowOf(operation) != nullptr;
}

std::optional<AskedFor> AskedFor::of(const Call& call, bool isFailure, const HandleTable& handles)
{
    return of(call, isFailure, [&handles](const QString& handle) { return handles.path(handle); });
}

std::optional<AskedFor> AskedFor::of(const Call& call, bool isFailure, const PathOf& pathOf)
{
    const Row* const row = rowOf(call.operation);
    const bool isFile = row && row->kind == Kind::File;
    if (!row || !call.hasReturned() || (isFile && call.arguments.member(row->name).isNull()))
        return {};
    const bool isAbsent = isAbsentFrom(call, row->absence, isFailure);
    switch (row->kind) {
    case Kind::Key: return AskedFor{row->kind, subKeyOf(call, *row, pathOf), {}, isAbsent};
    case Kind::Value:
        return AskedFor{row->kind, keyOf(call, pathOf), argument(call, row->name), isAbsent};
    case Kind::Entry:
        return AskedFor{
            row->kind, argument(call, "file"),
            QStringLiteral("[%1] %2").arg(argument(call, "section"), argument(call, row->name)),
            isAbsent};
    case Kind::File: break;
    }
    return AskedFor{row->kind, argument(call, row->name), {}, isAbsent};
}

} // namespace trace
