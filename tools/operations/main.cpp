// operations_page LANGUAGE DIFFERENCES: prints the handbook's page of operations in Markdown, in
// the language "en" or "zh_CN".

#include "tools/operations/Differences.h"
#include "tools/operations/OperationWords.h"
#include "trace/Operations.h"

#include <cctype>
#include <exception>
#include <fstream>
#include <iostream>

namespace {

using operationwords::Language;

// "IPlatformRegisterManager" for "register".
std::string className(const std::string& manager)
{
    if (manager == "services")
        return "IPlatformServices";
    const auto first = static_cast<char>(std::toupper(static_cast<unsigned char>(manager.front())));
    return "IPlatform" + (first + manager.substr(1)) + "Manager";
}

std::string link(const trace::Manager& manager, const trace::Operation& operation)
{
    return std::string("[") + operation.name + "](@ref " + className(manager.name) +
           "::" + operation.name + ")";
}

bool isWritten(const trace::Parameter& parameter)
{
    return parameter.role != trace::Role::Unwritten &&
           (parameter.role >= trace::Role::TextOut || parameter.extent != trace::Extent::None);
}

std::string written(const trace::Operation& operation, Language language)
{
    std::string text;
    for (const trace::Parameter& parameter : operation.parameters) {
        if (!isWritten(parameter))
            continue;
        const std::string extent = operationwords::extent(parameter, language);
        text += (text.empty() ? "`" : ", `") + std::string(parameter.name) + '`';
        text += extent.empty() ? "" : " (" + extent + ')';
    }
    return text;
}

std::string neverWritten(const trace::Operation& operation)
{
    std::string text;
    for (const trace::Parameter& parameter : operation.parameters) {
        if (parameter.role == trace::Role::Unwritten)
            text += (text.empty() ? "`" : ", `") + std::string(parameter.name) + '`';
    }
    return text;
}

void printOperation(const trace::Manager& manager, std::size_t slot, const Differences& differences,
                    Language language)
{
    const trace::Operation& operation = manager.operations[slot];
    if (operation.isDestructor) {
        std::cout << "| " << slot << " | `" << operation.name << "` | | | | | |\n";
        return;
    }
    std::cout << "| " << slot << " | " << link(manager, operation) << " | "
              << operationwords::failure(operation.result.failure, language) << " | "
              << written(operation, language) << " | " << neverWritten(operation) << " | "
              << operationwords::ownership(operation, language) << " | "
              << differences.of(manager.name, operation.name) << " |\n";
}

void printManager(const trace::Manager& manager, const Differences& differences, Language language)
{
    std::cout << "\n## " << className(manager.name) << "\n\n"
              << operationwords::titles(language).columns << "\n|---|---|---|---|---|---|---|\n";
    for (std::size_t slot = 0; slot < manager.operations.size(); ++slot)
        printOperation(manager, slot, differences, language);
}

void printFixed(Language language)
{
    std::cout << "\n## " << operationwords::titles(language).fixed << "\n\n"
              << operationwords::titles(language).fixedIntroduction << "\n\n";
    for (const trace::Manager& manager : trace::managers()) {
        std::string names;
        for (const trace::Operation& operation : manager.operations) {
            if (operation.isFixed)
                names += (names.empty() ? "" : ", ") + link(manager, operation);
        }
        if (!names.empty())
            std::cout << "- " << className(manager.name) << ": " << names << "\n";
    }
}

void printPage(const Differences& differences, Language language)
{
    std::cout << "# " << operationwords::titles(language).page << "\n\n"
              << operationwords::titles(language).introduction << "\n";
    for (const trace::Manager& manager : trace::managers())
        printManager(manager, differences, language);
    printFixed(language);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string code = argc == 3 ? argv[1] : "";
    if (code != "en" && code != "zh_CN") {
        std::cerr << "usage: operations_page en|zh_CN DIFFERENCES\n";
        return 2;
    }
    try {
        const Language language = code == "en" ? Language::English : Language::Chinese;
        std::ifstream lines(argv[2]);
        printPage(Differences(lines, language), language);
    } catch (const std::exception& fault) {
        std::cerr << fault.what() << '\n';
        return 1;
    }
    return 0;
}
