#pragma once

class Output;
struct RegistryDifference;

/// Differences of the registry as records.
namespace DifferenceRecord {

void begin(Output& output);
void print(const RegistryDifference& difference, Output& output);

} // namespace DifferenceRecord
