#pragma once

#include "inspection/registry/ImportPlan.h"

/// The statements of a registry file in words.
namespace ImportText {

/// What will become of the statement.
QString outcome(const ImportPlan::Statement& statement);

/// Type and data of the value that the statement sets; empty for any other statement.
QString data(const RegFileEntry& entry);

/// How many statements have which outcome, and how many values are overwritten.
QString summary(const ImportPlan& plan);

} // namespace ImportText
