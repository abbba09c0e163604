#pragma once

#include <QString>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace trace {

/// Gives each name a number, from 0 on, so that a million calls do not keep a million names.
class NameTable
{
public:
    NameTable() = default;
    NameTable(const NameTable&) = delete;
    NameTable& operator=(const NameTable&) = delete;

    /// The number of a name in UTF-8.
    int number(std::string_view name);
    int count() const { return static_cast<int>(m_names.size()); }
    /// The name with that number.
    const QString& name(int number) const { return m_shown[static_cast<std::size_t>(number)]; }

    void clear();

private:
    std::deque<std::string> m_names; ///< whose addresses stay
    std::deque<QString> m_shown;
    std::unordered_map<std::string_view, int> m_numbers;
};

} // namespace trace
