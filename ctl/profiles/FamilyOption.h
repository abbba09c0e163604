#pragma once

#include "platform/profiles/LineReading.h"

#include <optional>

class Arguments;
class QCommandLineParser;

/// The options --wide and --narrow.
namespace FamilyOption {

void add(QCommandLineParser& parser);
/// Nothing where none is given. Throws a Failure where both are.
std::optional<ProfileFamily> of(const Arguments& arguments);
/// The one that is given. Throws a Failure where it is not one.
ProfileFamily needed(const Arguments& arguments);

} // namespace FamilyOption
