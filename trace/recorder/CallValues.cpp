#include "trace/recorder/CallValues.h"

#include "platform/WindowsTypes.h"
#include "trace/Operations.h"
#include "trace/operations/Records.h"
#include "trace/recorder/Memory.h"
#include "trace/recorder/RegularFile.h"

#include <algorithm>
#include <limits>
#include <string>

namespace recorder {

namespace {

using trace::Extent;
using trace::Parameter;
using trace::Role;
using trace::Written;

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max() / sizeof(wchar_t);
constexpr std::size_t clearedPath = 256; // characters that are surely written

template <typename T>
const T* addressOf(std::uint64_t word)
{
    return reinterpret_cast<const T*>(word);
}

std::uint64_t wordAt(std::uint64_t address)
{
    std::uint64_t word = 0;
    memory::value(addressOf<void>(address), word);
    return word;
}

// A number of 32 bits behind a pointer, or null.
void numberBehind(std::uint64_t address, ValueWriter& writer)
{
    std::uint32_t number = 0;
    if (address == 0 || !memory::value(addressOf<void>(address), number))
        writer.pointer(address);
    else
        writer.line().unsignedNumber(number);
}

// Text is read up to its terminator by the service too; of the other types it never reads less than
// one byte.
void data(const CallWords& call, const Parameter& parameter, ValueWriter& writer)
{
    const std::uint64_t address = call.word(parameter);
    const std::uint64_t type = call.word(call.parameter("type"));
    const std::uint64_t size = call.word(call.parameter(parameter.size));
    const bool isNumber = type == REG_DWORD || type == REG_QWORD || type == REG_NONE;
    if (address == 0)
        writer.pointer(address);
    else if (type == REG_SZ)
        writer.wideText(address, unlimited, parameter.isValue);
    else
        writer.bytes(address, std::max<std::uint64_t>(size, isNumber ? 1 : 0), parameter.isValue);
}

// Such a parameter is an address; what is there comes when the call has returned.
bool isAddress(Role role)
{
    return role > Role::TextInOut || role == Role::TextOut || role == Role::NarrowTextOut ||
           role == Role::TextsOut;
}

void argument(const CallWords& call, const Parameter& parameter, ValueWriter& writer)
{
    const std::uint64_t word = call.word(parameter);
    switch (parameter.role) {
    case Role::Text:
    case Role::UnreadText:
    case Role::TextInOut: return writer.wideText(word, unlimited, parameter.isValue);
    case Role::NarrowText:
    case Role::UnreadNarrowText: return writer.narrowText(word, unlimited, parameter.isValue);
    case Role::String:
    case Role::StringOut: return writer.string(word);
    case Role::Data: return data(call, parameter, writer);
    case Role::Record: return writer.record(word, parameter.fields);
    case Role::RecordValue:
        return writer.record(reinterpret_cast<std::uint64_t>(&word), parameter.fields);
    case Role::SizeInOut: return numberBehind(word, writer);
    case Role::LostKeyOut: return writer.pointer(wordAt(word));
    default: break;
    }
    if (isAddress(parameter.role))
        writer.pointer(word);
    else
        writer.plain(parameter.role, parameter.names, word);
}

// Outputs ----------------------------------------------------------------------------------------

// What is known when a call has returned.
struct Answer
{
    const CallWords& call;
    std::uint64_t result;
    const Inquiry& inquiry;

    std::uint64_t size(const Parameter& parameter) const
    {
        return parameter.size ? call.word(call.parameter(parameter.size)) : 0;
    }
};

// A size of 0 stands for a buffer that is not there.
bool hasAllNeeded(const Answer& answer, const Parameter& parameter)
{
    const trace::Rows<Parameter> rows = answer.call.operation.parameters;
    const bool areGiven = std::none_of(rows.begin(), rows.end(), [&answer](const Parameter& row) {
        return row.isNeeded && answer.call.word(row) == 0;
    });
    return areGiven && (!parameter.size || answer.size(parameter) != 0);
}

bool isWritten(const Answer& answer, const Parameter& parameter)
{
    if (parameter.extent == Extent::None || answer.call.word(parameter) == 0)
        return false;
    switch (parameter.written) {
    case Written::OnSuccess: return !trace::isFailure(answer.call.operation, answer.result);
    case Written::WhenOpened:
        return answer.result == ERROR_SUCCESS || answer.result == ERROR_FILE_NOT_FOUND;
    case Written::WhenListed: return answer.result == ERROR_SUCCESS || answer.inquiry.isListed();
    case Written::Given: return hasAllNeeded(answer, parameter);
    }
    return false;
}

// As many units as the size says now; where there is no size, as many as the service tells.
std::size_t unitsBySize(const Answer& answer, const Parameter& parameter)
{
    std::uint32_t count = 0;
    if (memory::value(addressOf<void>(answer.size(parameter)), count))
        return count;
    const bool isText = parameter.role == Role::TextOut;
    return (isText ? answer.inquiry.textLength() : answer.inquiry.dataLength()).value_or(0);
}

// The length of what stands in a buffer; characters or, of data, bytes.
std::size_t unitsOf(const Answer& answer, const Parameter& parameter)
{
    const std::uint64_t size = answer.size(parameter);
    switch (parameter.extent) {
    case Extent::Result: return answer.result;
    case Extent::ResultCut: return std::min(answer.result, size - 1);
    case Extent::ResultFull: return std::min(answer.result, size);
    case Extent::Size: return unitsBySize(answer, parameter);
    case Extent::Asked: return answer.inquiry.textLength().value_or(0);
    default: return 0;
    }
}

// The whole is written when it is longer than what is cleared, and then without a terminator.
void changedPath(const Answer& answer, const Parameter& parameter, ValueWriter& writer)
{
    const std::size_t limit =
        std::max(clearedPath, answer.inquiry.textLength().value_or(clearedPath));
    writer.wideText(answer.call.word(parameter), limit, parameter.isValue);
}

// A text of which the service says that it is one; other data are bytes.
bool isText(const Answer& answer)
{
    const Parameter* type = answer.call.find("type");
    std::uint32_t value = REG_NONE;
    return type && memory::value(addressOf<void>(answer.call.word(*type)), value) &&
           value == REG_SZ;
}

void writtenData(const Answer& answer, const Parameter& parameter, ValueWriter& writer)
{
    const std::uint64_t address = answer.call.word(parameter);
    const std::size_t count = unitsOf(answer, parameter);
    if (parameter.isValue && isText(answer))
        writer.wideCharacters(address, count / sizeof(wchar_t), parameter.isValue);
    else
        writer.bytes(address, count, parameter.isValue);
}

void writtenText(const Answer& answer, const Parameter& parameter, ValueWriter& writer)
{
    const std::uint64_t address = answer.call.word(parameter);
    // With a size of 0 the text's own address is handed out.
    if (parameter.extent == Extent::ResultFull && answer.size(parameter) == 0)
        writer.pointer(wordAt(address));
    else
        writer.wideCharacters(address, unitsOf(answer, parameter), parameter.isValue);
}

// The character sets whose script has a name are those of the table, except the last one.
bool hasScript(std::uint64_t record)
{
    BYTE charset = 0;
    const bool isRead =
        memory::value(addressOf<void>(record + offsetof(LOGFONTW, lfCharSet)), charset);
    return isRead && charset != OEM_CHARSET &&
           std::any_of(std::begin(trace::charsetNames), std::end(trace::charsetNames),
                       [charset](const trace::BitName& row) { return row.value == charset; });
}

// The fields of a record that have been written.
trace::Rows<trace::Field> writtenFields(const Answer& answer, const Parameter& parameter)
{
    trace::Rows<trace::Field> fields = parameter.fields;
    const std::uint64_t record = answer.call.word(parameter);
    const auto keepFirst = [&fields](std::size_t count) { fields.count = count; };
    if (parameter.extent == Extent::FindNext ||
        (parameter.extent == Extent::FindFirst &&
         !isRegularFile(answer.call.word(answer.call.operation.parameters[0]),
                        record + offsetof(WIN32_FIND_DATAW, cFileName))))
        keepFirst(trace::entryFieldCount);
    else if (parameter.extent == Extent::Script) {
        fields.first += fields.count - 1;
        keepFirst(hasScript(record) ? 1 : 0);
    }
    return fields;
}

void output(const Answer& answer, const Parameter& parameter, ValueWriter& writer)
{
    const std::uint64_t word = answer.call.word(parameter);
    switch (parameter.role) {
    case Role::TextOut:
    case Role::TextsOut: return writtenText(answer, parameter, writer);
    case Role::NarrowTextOut:
        return writer.narrowText(word, unitsOf(answer, parameter), parameter.isValue);
    case Role::TextInOut: return changedPath(answer, parameter, writer);
    case Role::StringOut: return writer.string(word);
    case Role::DataOut: return writtenData(answer, parameter, writer);
    case Role::NumberOut:
    case Role::ChoiceOut:
    case Role::SizeInOut: return numberBehind(word, writer);
    case Role::KeyHandleOut: return writer.plain(Role::KeyHandle, {}, wordAt(word));
    case Role::LostKeyOut: return writer.pointer(wordAt(word));
    default: return writer.record(word, writtenFields(answer, parameter));
    }
}

// An array of 1,024 characters. A text that is longer than what is cleared has no terminator, and
// is the end of the path.
void array(const CallWords& call, std::uint64_t result, ValueWriter& writer)
{
    constexpr std::size_t capacity = 1024;
    if (result == 0) {
        writer.pointer(result);
        return;
    }
    std::vector<wchar_t> copied;
    const auto path = memory::text(addressOf<wchar_t>(call.words[0]), unlimited, copied);
    const wchar_t* end = path.units + path.length;
    const wchar_t* dot =
        std::find(std::make_reverse_iterator(end), std::make_reverse_iterator(path.units), L'.')
            .base();
    const auto length = static_cast<std::size_t>(end - dot) + 1;
    writer.line().raw("{\"pointer\":");
    writer.line().hex(result);
    writer.line().raw(",\"text\":");
    const auto text = memory::text(addressOf<wchar_t>(result),
                                   std::min(capacity, std::max(clearedPath, length)), copied);
    writer.line().quoted(std::wstring_view(text.units, text.length));
    writer.line().raw("}");
}

} // namespace

const trace::Parameter& CallWords::parameter(std::string_view name) const
{
    return *trace::findParameter(operation, name);
}

const trace::Parameter* CallWords::find(std::string_view name) const
{
    return trace::findParameter(operation, name);
}

void writeArguments(const CallWords& call, ValueWriter& writer)
{
    for (const Parameter& parameter : call.operation.parameters) {
        writer.line().name(parameter.name);
        argument(call, parameter, writer);
    }
}

void writeOutputs(const CallWords& call, std::uint64_t result, const Inquiry& inquiry,
                  ValueWriter& writer)
{
    const Answer answer{call, result, inquiry};
    for (const Parameter& parameter : call.operation.parameters) {
        if (!isWritten(answer, parameter))
            continue;
        writer.line().name(parameter.name);
        output(answer, parameter, writer);
    }
}

void writeResult(const CallWords& call, std::uint64_t result, ValueWriter& writer)
{
    const Role role = call.operation.result.role;
    if (role == Role::None)
        writer.line().raw("null");
    else if (role == Role::String)
        writer.string(result);
    else if (role == Role::Text)
        array(call, result, writer);
    else
        writer.plain(role, call.operation.result.names, result);
}

} // namespace recorder
