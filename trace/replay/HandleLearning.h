#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/Call.h"

#include <cstdint>

namespace replay {

class HandleMap;

/// What a call did to handles, there and here.
class HandleLearning
{
public:
    /// All outlive this. `words` are the arguments here, `result` what was returned here.
    HandleLearning(const trace::Operation& operation, const trace::Call& call,
                   const std::uint64_t* words, std::uint64_t result)
        : m_operation(operation), m_call(call), m_words(words), m_result(result)
    {
    }

    /// Takes over which handles were given back and which were made.
    void apply(HandleMap& handles) const;
    /// The same as if no handle had been made here, where those that were are of no use.
    void applyMissing(HandleMap& handles) const;

    /// Whether a handle that the call handed back as it was given is the same here too.
    bool isSameHandedBack() const;

private:
    void applyEnded(HandleMap& handles) const;
    template <typename Take>
    void forEachMade(Take take) const;

    const trace::Operation& m_operation;
    const trace::Call& m_call;
    const std::uint64_t* m_words;
    std::uint64_t m_result;
};

} // namespace replay
