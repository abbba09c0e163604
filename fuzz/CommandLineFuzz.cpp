#include "app/CommandLine.h"
#include "fuzz/Expectation.h"
#include "fuzz/FuzzInput.h"

#include <QCoreApplication>
#include <QTranslator>

#include <map>
#include <vector>

namespace {

// The pairs of a line of whole pairs, the last of each key; none of any other line.
std::map<std::string, std::string> pairsOf(const std::vector<std::string>& arguments)
{
    std::map<std::string, std::string> pairs;
    for (std::size_t i = 1; arguments.size() % 2 == 1 && i < arguments.size(); i += 2)
        pairs[arguments[i]] = arguments[i + 1];
    return pairs;
}

std::vector<std::string> argumentsFrom(FuzzInput& input)
{
    std::vector<std::string> arguments = {"quayside"};
    while (input.remaining_bytes() > 0 && arguments.size() < 16) {
        const char* const known[] = {"/language", "zh-CN", "/page", "en"};
        arguments.push_back(input.ConsumeBool() ? input.PickValueInArray(known)
                                                : input.text().c_str());
    }
    return arguments;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int noArguments = 0;
    static const QCoreApplication application(noArguments, nullptr);
    FuzzInput input(data, size);
    std::vector<std::string> arguments = argumentsFrom(input);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const int count = static_cast<int>(arguments.size());
    QTranslator appTranslator;
    QTranslator qtTranslator;
    parseCommandLine(count, pointers.data(), appTranslator, qtTranslator);
    auto pairs = pairsOf(arguments);
    expectThat(appTranslator.isEmpty() == (pairs["/language"] != "zh-CN"),
               "Chinese is chosen by its pair alone");
    expectThat(requestedPage(count, pointers.data()) == QString::fromStdString(pairs["/page"]),
               "the page is that of the last pair");
    return 0;
}
