#include "inspection/host/DemangledName.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace {

constexpr char unnamedSpace[] = "(anonymous namespace)";

// Short names can stand for endless ones, since their parts may refer back to each other. What C++
// compilers make of code that people write keeps below this.
constexpr int mostReferences = 40;
constexpr int longestName = 2000;

bool isExplainable(const QByteArray& symbol)
{
    return symbol.startsWith("_Z") && symbol.size() <= longestName &&
           symbol.count('S') + symbol.count("T_") <= mostReferences;
}

QByteArray demangled(const QByteArray& symbol)
{
    struct Freer
    {
        void operator()(char* text) const { std::free(text); }
    };
    if (!isExplainable(symbol))
        return QByteArray();
    int status = 0;
    const std::unique_ptr<char, Freer> text(
        abi::__cxa_demangle(symbol.constData(), nullptr, nullptr, &status));
    return text && status == 0 ? QByteArray(text.get()) : QByteArray();
}

// Where the parameters begin: at the first bracket outside of template arguments that belongs
// neither to an operator's name nor to an unnamed namespace.
int beginOfParameters(const QByteArray& text)
{
    int depth = 0;
    for (int i = 0; i < text.size(); ++i) {
        const char character = text.at(i);
        if (character == '<')
            ++depth;
        if (character == '>')
            --depth;
        if (character != '(' || depth != 0)
            continue;
        if (text.mid(i).startsWith(unnamedSpace))
            i += static_cast<int>(sizeof unnamedSpace) - 2;
        else if (!text.left(i).endsWith("operator"))
            return i;
    }
    return text.size();
}

QByteArray lastPart(const QByteArray& qualified)
{
    const int arguments = qualified.indexOf('<');
    const QByteArray name = arguments < 0 ? qualified : qualified.left(arguments);
    return name.mid(name.lastIndexOf(':') + 1);
}

} // namespace

DemangledName::DemangledName(const QByteArray& symbol) : text(demangled(symbol))
{
    isMangled = !text.isEmpty();
    if (!isMangled)
        text = symbol;
    qualified = text.left(beginOfParameters(text));
    last = lastPart(qualified);
}
