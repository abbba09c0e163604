#pragma once

#include "trace/operations/Operation.h"
#include "trace/reading/RecordedValue.h"

namespace trace {

/// What the table of operations says about the values of a recording.
namespace KnownOperation {

/// Whether a result means that the operation failed.
bool isFailure(const Operation& operation, const RecordedValue& result);
/// The Windows names of a number, joined; empty where there is none for it.
QString names(const Rows<BitName>& names, quint32 number);

} // namespace KnownOperation
} // namespace trace
