#include "inspection/registry/ImportPlan.h"

#include <algorithm>

void ImportPlan::add(const RegFileEntry& entry)
{
    const ImportCheck check(entry);
    m_statements.push_back({entry, check.outcome(), check.remark()});
}

int ImportPlan::count(Outcome outcome) const
{
    return static_cast<int>(
        std::count_if(m_statements.begin(), m_statements.end(),
                      [outcome](const Statement& one) { return one.outcome == outcome; }));
}
