#pragma once

#include "trace/operations/Operation.h"

#include <string>

/// What the rows of the table of operations mean, in the words of the handbook's page of
/// operations.
namespace operationwords {

enum class Language
{
    English,
    Chinese
};

/// Which results mean that the operation failed; "" where none does.
std::string failure(trace::Failure failure, Language language);

/// How far the service writes to a parameter, and when; "" where there is nothing to be said.
std::string extent(const trace::Parameter& parameter, Language language);

/// Who owns what the operation hands out or takes back; "" where it is nobody's business.
std::string ownership(const trace::Operation& operation, Language language);

/// The titles of the page and of its tables.
struct Titles
{
    const char* page;
    const char* introduction;
    const char* columns;
    const char* fixed;
    const char* fixedIntroduction;
};
const Titles& titles(Language language);

} // namespace operationwords
