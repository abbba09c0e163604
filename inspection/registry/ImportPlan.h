#pragma once

#include "inspection/registry/ImportCheck.h"

#include <vector>

/// What an import will do, statement by statement, before anything is written.
class ImportPlan
{
public:
    using Outcome = ImportCheck::Outcome;

    struct Statement
    {
        RegFileEntry entry;
        Outcome outcome = Outcome::Done;
        QString remark; ///< what is altered, or why it is refused, in words
    };

    /// Checks a statement against the store as it is now, and adds it with what will become of it.
    void add(const RegFileEntry& entry);

    const std::vector<Statement>& statements() const { return m_statements; }
    int count(Outcome outcome) const;

private:
    std::vector<Statement> m_statements;
};
