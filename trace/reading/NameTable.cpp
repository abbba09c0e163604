#include "trace/reading/NameTable.h"

namespace trace {

int NameTable::number(std::string_view name)
{
    const auto found = m_numbers.find(name);
    if (found != m_numbers.end())
        return found->second;
    const int number = count();
    m_names.emplace_back(name);
    m_shown.push_back(QString::fromUtf8(name.data(), static_cast<int>(name.size())));
    m_numbers.emplace(m_names.back(), number);
    return number;
}

void NameTable::clear()
{
    m_numbers.clear();
    m_names.clear();
    m_shown.clear();
}

} // namespace trace
