#pragma once

#include "trace/RecordingOptions.h"
#include "trace/operations/Operation.h"
#include "trace/recorder/Line.h"
#include "trace/recorder/ThreadState.h"

#include <cstddef>
#include <cstdint>

namespace recorder {

/// Writes values by what they mean. A value arrives as a word: a number, or an address.
class ValueWriter
{
public:
    ValueWriter(Line& line, ThreadState& state, const trace::RecordingOptions& options)
        : m_line(line), m_state(state), m_options(options)
    {
    }

    Line& line() const { return m_line; }

    /// A number, a handle or an address by its role; null for an address that is null.
    void plain(trace::Role role, trace::Rows<trace::BitName> names, std::uint64_t word);

    /// `{"pointer":"0x..."}`, or null.
    void pointer(std::uint64_t word);

    /// Text with a terminator, `limit` units at most, wherever it stands.
    void wideText(std::uint64_t word, std::size_t limit, bool isValue);
    void narrowText(std::uint64_t word, std::size_t limit, bool isValue);

    /// The wide string of the interfaces, by its address.
    void string(std::uint64_t word);

    /// This many characters, whatever they are.
    void wideCharacters(std::uint64_t word, std::size_t count, bool isValue);

    /// This many bytes.
    void bytes(std::uint64_t word, std::size_t count, bool isValue);

    /// A record at an address, of which these fields can be read.
    void record(std::uint64_t word, trace::Rows<trace::Field> fields);

    /// The same in the object that has been begun.
    void fields(std::uint64_t word, trace::Rows<trace::Field> fields);

private:
    void flags(trace::Rows<trace::BitName> names, std::uint64_t word);
    void handle(trace::Role role, std::uint64_t word);
    void field(const trace::Field& field, std::uint64_t record);
    template <typename Character>
    void shortened(const Character* text, std::size_t length, bool isValue);
    bool isHidden(std::size_t length, bool isValue);
    std::size_t shownOf(std::size_t length) const;

    Line& m_line;
    ThreadState& m_state;
    const trace::RecordingOptions& m_options;
};

} // namespace recorder
