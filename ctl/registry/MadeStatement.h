#pragma once

#include "inspection/registry/ImportPlan.h"

#include <memory>

class Output;

/// Statements, as those of registry files, that commands make themselves and carry out.
namespace MadeStatement {

/// A plan with this statement alone.
std::shared_ptr<const ImportPlan> planOf(const RegFileEntry& entry);
/// Carries a plan out and saves the store. Throws a Failure, with nothing saved, where the service
/// fails anything, and where what has been printed of it cannot be written.
void apply(const std::shared_ptr<const ImportPlan>& plan, Output& output);

} // namespace MadeStatement
