#include "trace/replay/CallArguments.h"

#include "platform/WindowsTypes.h"
#include "trace/replay/BufferSize.h"
#include "trace/replay/HandleMap.h"
#include "trace/replay/RecordedText.h"
#include "trace/replay/ReplayFolder.h"
#include "trace/replay/Surroundings.h"

#include <QStringList>

#include <algorithm>
#include <cstring>

namespace replay {

namespace {

using trace::Parameter;
using trace::Role;
using Value = trace::RecordedValue;
using Limit = GuardedBuffer::Limit;

struct NamedHandle
{
    const char* name;
    void* handle;
};

const NamedHandle* findNamed(const QString& name)
{
    static const NamedHandle rows[] = {{"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},
                                       {"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
                                       {"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},
                                       {"HKEY_USERS", HKEY_USERS},
                                       {"INVALID_HANDLE_VALUE", INVALID_HANDLE_VALUE}};
    const auto found = std::find_if(std::begin(rows), std::end(rows), [&](const NamedHandle& row) {
        return name == QLatin1String(row.name);
    });
    return found == std::end(rows) ? nullptr : found;
}

bool isNullHandle(const Value& value)
{
    return value.isNull() || value.textOf("handle") == QLatin1String("0x0");
}

// What is never an address or a number that the services hand out.
std::uint64_t deadHandle()
{
    static const char place = 0;
    return reinterpret_cast<std::uint64_t>(&place);
}

bool isShortened(const Value& value)
{
    const Value& length = value.member("length");
    if (length.isAbsent())
        return false;
    const bool isBytes = value.role() == Value::Role::Data;
    return !isBytes || value.textOf("data").size() / 2 < length.toInteger();
}

// Such an argument is an object of the caller's, which is always there.
bool isObject(Role role)
{
    return role == Role::String || role == Role::StringOut;
}

bool isUnread(Role role)
{
    return role == Role::UnreadText || role == Role::UnreadNarrowText;
}

void putNumber(unsigned char* to, std::uint64_t number, std::size_t size)
{
    std::memcpy(to, &number, std::min(size, sizeof number)); // the lowest byte comes first
}

void putField(unsigned char* record, const trace::Field& field, const Value& value)
{
    unsigned char* const to = record + field.offset;
    if (field.role != Role::Text) {
        putNumber(to, static_cast<std::uint64_t>(numberIn(value)), field.size);
        return;
    }
    const std::wstring text = RecordedText::toWide(value.textOf("text"));
    const std::size_t count = std::min<std::size_t>(text.size(), field.count);
    for (std::size_t i = 0; i < count; ++i) // without a terminator where the field has no room
        putNumber(to + i * field.size, static_cast<std::uint64_t>(text[i]), field.size);
}

} // namespace

CallArguments::CallArguments(const trace::Operation& operation, const trace::Call& call,
                             const HandleMap& handles, const ReplayFolder& folder,
                             std::uint64_t procedure)
    : m_operation(operation),
      m_call(call),
      m_handles(handles),
      m_folder(folder),
      m_procedure(procedure)
{
    for (const Parameter& parameter : operation.parameters)
        m_words.push_back(word(parameter, call.arguments.member(parameter.name)));
    m_words.push_back(0); // so that there is always one
}

QStringList CallArguments::overruns() const
{
    QStringList names;
    for (const Buffer& buffer : m_buffers) {
        if (!buffer.memory.isWhole())
            names += QLatin1String(buffer.parameter->name);
    }
    return names;
}

std::uint64_t CallArguments::fail(SkipReason reason)
{
    m_fault = reason;
    return 0;
}

GuardedBuffer& CallArguments::buffer(const Parameter& parameter, std::size_t capacity, Limit limit)
{
    m_buffers.push_back({&parameter, GuardedBuffer(capacity, limit)});
    return m_buffers.back().memory;
}

std::uint64_t CallArguments::word(const Parameter& parameter, const Value& value)
{
    const Role role = parameter.role;
    if (value.role() == Value::Role::Hidden)
        return fail(SkipReason::Hidden);
    if (isShortened(value))
        return fail(SkipReason::Shortened);
    if (role <= Role::Flags)
        return static_cast<std::uint64_t>(numberIn(value));
    if (role >= Role::KeyHandle && role <= Role::ModuleHandle)
        return handle(parameter, value);
    if (role == Role::LostKeyOut)
        return lostKey(parameter);
    if (value.isNull() || value.isAbsent())
        return isObject(role) ? fail(SkipReason::Unreadable) : 0;
    return role < Role::TextOut ? input(parameter, value) : output(parameter, value);
}

std::uint64_t CallArguments::input(const Parameter& parameter, const Value& value)
{
    switch (parameter.role) {
    case Role::Text:
    case Role::NarrowText:
    case Role::UnreadText:
    case Role::UnreadNarrowText: return text(parameter, value);
    case Role::String: return string(value);
    case Role::Data: return data(value);
    case Role::Record: return record(parameter, value);
    case Role::RecordValue: return recordValue(parameter, value);
    case Role::Callback: return m_procedure;
    default: return buffer(parameter, 0).address(); // which the service never looks at
    }
}

std::uint64_t CallArguments::text(const Parameter& parameter, const Value& value)
{
    if (value.role() == Value::Role::Pointer)
        return isUnread(parameter.role) ? buffer(parameter, 0).address()
                                        : fail(SkipReason::Unreadable);
    QString shown = value.textOf("text");
    if (Surroundings::isPath(m_operation, parameter)) {
        m_path = shown;
        shown = m_folder.toReplay(shown);
    }
    if (parameter.role == Role::Text || parameter.role == Role::UnreadText) {
        m_wideTexts.push_back(RecordedText::toWide(shown));
        return reinterpret_cast<std::uint64_t>(m_wideTexts.back().c_str());
    }
    m_narrowTexts.push_back(RecordedText::toNarrow(shown));
    return reinterpret_cast<std::uint64_t>(m_narrowTexts.back().c_str());
}

// What an operation that is not supported is given does not matter.
std::uint64_t CallArguments::handle(const Parameter& parameter, const Value& value)
{
    if (isNullHandle(value))
        return 0;
    const QString& name = value.textOf("handle");
    if (const NamedHandle* named = findNamed(name)) {
        const bool isFreed = parameter.life == trace::Life::Ends;
        if (isFreed && parameter.role == Role::KeyHandle)
            return fail(SkipReason::RootGivenBack);
        return reinterpret_cast<std::uint64_t>(named->handle);
    }
    if (m_operation.isFixed)
        return deadHandle();
    if (parameter.role == Role::ModuleHandle)
        return fail(SkipReason::Module);
    return mappedHandle(parameter, name);
}

// Of keys the service demands that they live; of searches and graphics objects it knows those that
// do, and an ended one is to be unknown here too, whatever has been made since.
std::uint64_t CallArguments::mappedHandle(const Parameter& parameter, const QString& name)
{
    const HandleMap::Entry entry = m_handles.find(parameter.role, name);
    switch (entry.state) {
    case HandleMap::State::Alive: return entry.word;
    case HandleMap::State::Missing: return fail(SkipReason::MissingHandle);
    case HandleMap::State::Unknown: return fail(SkipReason::UnknownHandle);
    case HandleMap::State::Ended: break;
    }
    return parameter.role == Role::KeyHandle ? fail(SkipReason::EndedHandle) : deadHandle();
}

std::uint64_t CallArguments::string(const Value& value)
{
    if (value.role() == Value::Role::Pointer)
        return fail(SkipReason::Unreadable);
    CStdStr<wchar_t>& made = m_strings.emplace_back();
    made.assign(RecordedText::toWide(value.textOf("text")));
    return reinterpret_cast<std::uint64_t>(&made);
}

std::uint64_t CallArguments::data(const Value& value)
{
    if (value.role() == Value::Role::Text) {
        m_wideTexts.push_back(RecordedText::toWide(value.textOf("text")));
        return reinterpret_cast<std::uint64_t>(m_wideTexts.back().c_str());
    }
    if (value.role() != Value::Role::Data)
        return fail(SkipReason::Unreadable);
    const QByteArray bytes = QByteArray::fromHex(value.textOf("data").toLatin1());
    m_narrowTexts.push_back(bytes.toStdString());
    return reinterpret_cast<std::uint64_t>(m_narrowTexts.back().data());
}

std::uint64_t CallArguments::record(const Parameter& parameter, const Value& value)
{
    if (value.role() != Value::Role::Record)
        return fail(SkipReason::Unreadable);
    GuardedBuffer& memory = buffer(parameter, recordSize(parameter.fields));
    std::memset(memory.data(), 0, memory.capacity());
    for (const trace::Field& field : parameter.fields)
        putField(memory.data(), field, value.member(field.name));
    return memory.address();
}

std::uint64_t CallArguments::recordValue(const Parameter& parameter, const Value& value)
{
    unsigned char bytes[sizeof(std::uint64_t)] = {};
    for (const trace::Field& field : parameter.fields)
        putField(bytes, field, value.member(field.name));
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

std::uint64_t CallArguments::output(const Parameter& parameter, const Value& value)
{
    switch (parameter.role) {
    case Role::StringOut: return string(value);
    case Role::TextInOut: return changedPath(parameter, value);
    case Role::NumberOut:
    case Role::ChoiceOut: return buffer(parameter, sizeof(std::uint32_t)).address();
    case Role::SizeInOut: return numberBehind(parameter, value);
    case Role::KeyHandleOut: return buffer(parameter, sizeof(void*)).address();
    case Role::RecordOut: return buffer(parameter, recordSize(parameter.fields)).address();
    case Role::Unwritten: return buffer(parameter, 0).address();
    default: return room(parameter);
    }
}

std::uint64_t CallArguments::room(const Parameter& parameter)
{
    BufferSize size = BufferSize::of(parameter, m_call);
    const std::ptrdiff_t terminator = terminatorPlace(parameter, m_call);
    if (terminator >= 0)
        size.bytes = std::max(size.bytes, static_cast<std::size_t>(terminator) + sizeof(wchar_t));
    GuardedBuffer& memory = buffer(parameter, size.bytes, size.limit);
    if (terminator >= 0)
        std::memset(memory.data() + terminator, 0, sizeof(wchar_t));
    return memory.address();
}

// The pointer itself is what is written to; where it leads before that does not matter.
std::uint64_t CallArguments::lostKey(const Parameter& parameter)
{
    GuardedBuffer& memory = buffer(parameter, sizeof(void*));
    putNumber(memory.data(), deadHandle(), sizeof(void*));
    return memory.address();
}

std::uint64_t CallArguments::changedPath(const Parameter& parameter, const Value& value)
{
    if (value.role() != Value::Role::Text)
        return fail(SkipReason::Unreadable);
    const std::wstring path = RecordedText::toWide(value.textOf("text"));
    const std::size_t size = (path.size() + 1) * sizeof(wchar_t);
    const BufferSize least = BufferSize::of(parameter, m_call);
    GuardedBuffer& memory = buffer(parameter, std::max(size, least.bytes), least.limit);
    std::memcpy(memory.data(), path.c_str(), size);
    return memory.address();
}

std::uint64_t CallArguments::numberBehind(const Parameter& parameter, const Value& value)
{
    if (value.kind != Value::Kind::Number)
        return fail(SkipReason::Unreadable);
    GuardedBuffer& memory = buffer(parameter, sizeof(std::uint32_t));
    putNumber(memory.data(), static_cast<std::uint64_t>(numberIn(value)), sizeof(std::uint32_t));
    return memory.address();
}

} // namespace replay
