#pragma once

#include "inspection/registry/StoreChange.h"

class Output;

/// Changes of entries that commands make past the registry service, which has no call for them.
namespace StoreChanges {

/// Names each entry and where it comes to stand.
void print(const StoreChange& change, Output& output);
/// Makes the change and saves the store.
void apply(StoreChange change, Output& output);

} // namespace StoreChanges
