#pragma once

#include "trace/operations/Operation.h"

#include <string_view>

/// What in a recording comes from where it was made, and not from the services: the one list of it.
namespace replay::Surroundings {

/// How an answer, or a part of one, is compared.
enum class Comparison
{
    ByRole, ///< as its role says
    IsNot0, ///< whether it is 0 or null, alone
    Length, ///< its length alone
    NotAtAll,
};

/// The name of the result among the parts of an answer.
constexpr std::string_view result = "(result)";

/// How a part is compared: a parameter, a field of a record as "parameter.field", or the result.
Comparison comparison(std::string_view operation, std::string_view part);

/// Whether this argument of the operation is a path at which the service looks or writes. It then
/// leads into the folder of the replay.
bool isPath(const trace::Operation& operation, const trace::Parameter& parameter);

/// Whether the operation changes what later calls of its manager answer.
bool isChanging(const trace::Operation& operation);

/// Whether the operation writes to its path, so that from then on it is known what is there.
bool isWriting(const trace::Operation& operation);

} // namespace replay::Surroundings
