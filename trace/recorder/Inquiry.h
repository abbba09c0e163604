#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace trace {
struct Operation;
}

namespace recorder {

/// What only the service can tell about its outputs: the length of a text that it wrote without a
/// terminator, and whether it wrote a name although it failed. It is asked once more, with buffers
/// of the recorder's own, and only by calls that change nothing.
class Inquiry
{
public:
    /// Asks what cannot be asked afterwards: arguments may be overwritten by the call.
    void before(const trace::Operation& operation, void* object, const std::uint64_t* words);

    /// Asks the rest.
    void after(const trace::Operation& operation, void* object, const std::uint64_t* words,
               std::uint64_t result);

    /// The length of the text in characters, or of the data in bytes, where no argument tells it.
    std::optional<std::size_t> textLength() const { return m_textLength; }
    std::optional<std::size_t> dataLength() const { return m_dataLength; }

    /// Whether a name was written by a call that failed.
    bool isListed() const { return m_isListed; }

private:
    friend struct Questions;

    std::optional<std::size_t> m_textLength;
    std::optional<std::size_t> m_dataLength;
    bool m_isListed = false;
};

} // namespace recorder
