#pragma once

#include "trace/operations/Operation.h"
#include "trace/recorder/Inquiry.h"
#include "trace/recorder/ValueWriter.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace recorder {

/// The arguments of a call, as words: numbers with their signs, addresses, small records.
struct CallWords
{
    const trace::Operation& operation;
    const std::uint64_t* words;

    std::uint64_t word(const trace::Parameter& parameter) const
    {
        return words[&parameter - operation.parameters.begin()];
    }
    /// The place of the parameter of this name, which the operation has.
    const trace::Parameter& parameter(std::string_view name) const;
    /// Null where there is none of this name.
    const trace::Parameter* find(std::string_view name) const;
};

/// Writes the arguments as they are when the call is entered, one after the other.
void writeArguments(const CallWords& call, ValueWriter& writer);

/// Writes what the service wrote, as far as the rows say, and nothing else.
void writeOutputs(const CallWords& call, std::uint64_t result, const Inquiry& inquiry,
                  ValueWriter& writer);

/// Writes what the operation returned.
void writeResult(const CallWords& call, std::uint64_t result, ValueWriter& writer);

} // namespace recorder
