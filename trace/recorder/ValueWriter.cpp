#include "trace/recorder/ValueWriter.h"

#include "platform/WindowsTypes.h"
#include "trace/Operations.h"
#include "trace/recorder/Memory.h"
#include "trace/recorder/Modules.h"

#include <algorithm>
#include <string>

namespace recorder {

namespace {

using trace::Role;

constexpr std::size_t longestData =
    std::size_t{16} * 1024 * 1024; // bytes, where no option says less

template <typename T>
const T* addressOf(std::uint64_t word)
{
    return reinterpret_cast<const T*>(word);
}

const char* rootName(std::uint64_t word)
{
    const void* key = addressOf<void>(word);
    if (key == HKEY_CLASSES_ROOT)
        return "HKEY_CLASSES_ROOT";
    if (key == HKEY_CURRENT_USER)
        return "HKEY_CURRENT_USER";
    if (key == HKEY_LOCAL_MACHINE)
        return "HKEY_LOCAL_MACHINE";
    return key == HKEY_USERS ? "HKEY_USERS" : nullptr;
}

// The names that handles have in place of numbers; null for the others.
const char* handleName(Role role, std::uint64_t word)
{
    if (role == Role::SearchHandle && addressOf<void>(word) == INVALID_HANDLE_VALUE)
        return "INVALID_HANDLE_VALUE";
    return role == Role::KeyHandle ? rootName(word) : nullptr;
}

bool isHandle(Role role)
{
    return role >= Role::KeyHandle && role <= Role::ModuleHandle;
}

// A number of this many bytes, as the records hold them; a byte or a word has no sign.
std::uint64_t numberOf(const unsigned char* bytes, std::size_t size, Role role)
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < size; ++i)
        number |= std::uint64_t{bytes[i]} << (8 * i);
    return role == Role::Number && size == sizeof(int)
               ? static_cast<std::uint64_t>(static_cast<std::int32_t>(number))
               : number;
}

} // namespace

void ValueWriter::plain(Role role, trace::Rows<trace::BitName> names, std::uint64_t word)
{
    if (role == Role::Number || role == Role::Choice)
        m_line.number(static_cast<std::int64_t>(word));
    else if (role == Role::Unsigned)
        m_line.unsignedNumber(word);
    else if (role == Role::Flags)
        flags(names, word);
    else if (role == Role::Callback && word != 0)
        m_line.raw("{\"callback\":"), m_line.quoted(m_state.placeOf(word)), m_line.raw("}");
    else if (isHandle(role))
        handle(role, word);
    else
        pointer(word);
}

void ValueWriter::pointer(std::uint64_t word)
{
    if (word == 0)
        m_line.raw("null");
    else
        m_line.hexObject("pointer", word);
}

void ValueWriter::flags(trace::Rows<trace::BitName> names, std::uint64_t word)
{
    m_line.raw("{\"flags\":");
    m_line.unsignedNumber(word);
    m_line.raw(",\"names\":[");
    bool isFirst = true;
    trace::forEachName(names, static_cast<std::uint32_t>(word), [&](const char* name) {
        m_line.raw(isFirst ? "\"" : ",\"");
        m_line.raw(name);
        m_line.raw("\"");
        isFirst = false;
    });
    m_line.raw("]}");
}

void ValueWriter::handle(Role role, std::uint64_t word)
{
    const char* name = handleName(role, word);
    if (!name) {
        m_line.hexObject("handle", word);
        return;
    }
    m_line.raw("{\"handle\":\"");
    m_line.raw(name);
    m_line.raw("\"}");
}

bool ValueWriter::isHidden(std::size_t length, bool isValue)
{
    if (!isValue || !m_options.hidesData)
        return false;
    m_line.raw("{\"hidden\":");
    m_line.unsignedNumber(length);
    m_line.raw("}");
    return true;
}

std::size_t ValueWriter::shownOf(std::size_t length) const
{
    return std::min(length, m_options.longestText.value_or(length));
}

template <typename Character>
void ValueWriter::shortened(const Character* text, std::size_t length, bool isValue)
{
    if (isHidden(length, isValue))
        return;
    const std::size_t shown = shownOf(length);
    m_line.raw("{\"text\":");
    m_line.quoted(std::basic_string_view<Character>(text, shown));
    if (shown < length) {
        m_line.raw(",\"length\":");
        m_line.unsignedNumber(length);
    }
    m_line.raw("}");
}

void ValueWriter::wideText(std::uint64_t word, std::size_t limit, bool isValue)
{
    const auto text = memory::text(addressOf<wchar_t>(word), limit, m_state.wideCopy);
    if (word == 0 || !text.units)
        pointer(word);
    else
        shortened(text.units, text.length, isValue);
}

void ValueWriter::narrowText(std::uint64_t word, std::size_t limit, bool isValue)
{
    const auto text = memory::text(addressOf<char>(word), limit, m_state.narrowCopy);
    if (word == 0 || !text.units)
        pointer(word);
    else
        shortened(text.units, text.length, isValue);
}

void ValueWriter::string(std::uint64_t word)
{
    // Only a string whose own bytes can be read is asked for its text.
    unsigned char readable[sizeof(std::wstring)];
    if (!memory::value(addressOf<void>(word), readable)) {
        pointer(word);
        return;
    }
    const auto& string = *addressOf<std::wstring>(word);
    wideCharacters(reinterpret_cast<std::uint64_t>(string.data()), string.size(), false);
}

void ValueWriter::wideCharacters(std::uint64_t word, std::size_t count, bool isValue)
{
    std::vector<wchar_t>& copy = m_state.wideCopy;
    copy.resize(count);
    const std::size_t read =
        memory::copy(addressOf<void>(word), copy.data(), count * sizeof(wchar_t));
    shortened(copy.data(), read / sizeof(wchar_t), isValue);
}

void ValueWriter::bytes(std::uint64_t word, std::size_t count, bool isValue)
{
    if (isHidden(count, isValue))
        return;
    std::vector<unsigned char>& copy = m_state.byteCopy;
    copy.resize(std::min(shownOf(count), longestData));
    const std::size_t read = memory::copy(addressOf<void>(word), copy.data(), copy.size());
    m_line.raw("{\"data\":");
    m_line.quotedBytes(copy.data(), read);
    m_line.raw(",\"length\":");
    m_line.unsignedNumber(count);
    m_line.raw("}");
}

void ValueWriter::record(std::uint64_t word, trace::Rows<trace::Field> rows)
{
    if (word == 0) {
        m_line.raw("null");
        return;
    }
    m_line.raw("{");
    fields(word, rows);
    m_line.raw("}");
}

void ValueWriter::fields(std::uint64_t word, trace::Rows<trace::Field> rows)
{
    for (const trace::Field& row : rows) {
        m_line.name(row.name);
        field(row, word);
    }
}

void ValueWriter::field(const trace::Field& field, std::uint64_t record)
{
    const std::uint64_t place = record + field.offset;
    if (field.role == Role::Text) {
        wideText(place, field.count, false);
        return;
    }
    unsigned char bytes[sizeof(std::uint64_t)] = {};
    if (memory::copy(addressOf<void>(place), bytes, field.size) != field.size) {
        m_line.raw("null");
        return;
    }
    plain(field.role, field.names, numberOf(bytes, field.size, field.role));
}

} // namespace recorder
