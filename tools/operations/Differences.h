#pragma once

#include "tools/operations/OperationWords.h"

#include <istream>
#include <map>
#include <stdexcept>
#include <string>

/// How the operations differ from those of the same names on Windows: a text for each operation,
/// from a file with a line each: manager, operation, English, Chinese, with a tab between them.
class Differences
{
public:
    /// Throws std::runtime_error for a line that has another form, for an operation that the table
    /// of operations does not have, and where one of its operations has no line.
    Differences(std::istream& lines, operationwords::Language language);

    const std::string& of(const std::string& manager, const std::string& operation) const;

private:
    void add(const std::string& line, operationwords::Language language);
    void refuseMissing() const;

    std::map<std::string, std::string> m_texts; ///< by "manager operation"
};
