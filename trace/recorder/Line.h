#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace recorder {

/// A line of the recording while it is written: JSON without spaces.
class Line
{
public:
    const std::string& text() const { return m_text; }
    std::size_t size() const { return m_text.size(); }

    void clear() { m_text.clear(); }
    /// Takes the last characters away again.
    void cut(std::size_t size) { m_text.resize(size); }
    /// Gives back the memory of an unusually long line.
    void shrink();

    /// Characters as they are.
    void raw(std::string_view text) { m_text.append(text); }
    /// `,"name":` or, at the beginning of an object, `"name":`.
    void name(std::string_view name);
    void number(std::int64_t value);
    void unsignedNumber(std::uint64_t value);
    /// A quoted number with "0x" in front.
    void hex(std::uint64_t value);
    /// `{"<name>":"0x..."}`.
    void hexObject(std::string_view name, std::uint64_t value);

    void quoted(std::string_view utf8);
    /// Quoted; units that are no characters become \ud800 and so on, or U+FFFD.
    void quoted(std::wstring_view text);
    /// Two digits a byte, quoted.
    void quotedBytes(const unsigned char* bytes, std::size_t count);

private:
    void character(std::uint32_t code);
    void escaped(std::uint32_t code);

    std::string m_text;
};

} // namespace recorder
