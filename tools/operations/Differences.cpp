#include "tools/operations/Differences.h"

#include "trace/Operations.h"

#include <array>
#include <sstream>

Differences::Differences(std::istream& lines, operationwords::Language language)
{
    std::string line;
    while (std::getline(lines, line))
        add(line, language);
    refuseMissing();
}

const std::string& Differences::of(const std::string& manager, const std::string& operation) const
{
    return m_texts.at(manager + ' ' + operation);
}

void Differences::add(const std::string& line, operationwords::Language language)
{
    std::istringstream cells(line);
    std::array<std::string, 4> cell;
    for (std::string& text : cell)
        std::getline(cells, text, '\t');
    if (cell[3].empty())
        throw std::runtime_error("A line without four cells: " + line);
    if (!trace::findOperation(cell[0], cell[1]))
        throw std::runtime_error("There is no such operation: " + line);
    m_texts[cell[0] + ' ' + cell[1]] = cell[language == operationwords::Language::English ? 2 : 3];
}

void Differences::refuseMissing() const
{
    for (const trace::Manager& manager : trace::managers()) {
        for (const trace::Operation& operation : manager.operations) {
            const std::string name = std::string(manager.name) + ' ' + operation.name;
            if (!operation.isDestructor && m_texts.count(name) == 0)
                throw std::runtime_error("Nothing is said of " + name);
        }
    }
}
