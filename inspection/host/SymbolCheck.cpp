#include "inspection/host/SymbolCheck.h"

#include "inspection/host/DemangledName.h"

#include <algorithm>

namespace {

// Looking for what is meant takes milliseconds a symbol. Where that many are missing, something
// else is wrong.
constexpr int mostExplained = 200;

// The dynamic loader's rule.
bool isMet(const ElfSymbolVersion& wanted, const ElfSymbolVersion& present, const ElfObject& object)
{
    if (wanted.name.isEmpty())
        return present.name.isEmpty() || !present.isHidden;
    if (!object.hasVersions || wanted.name == present.name)
        return true;
    return present.name.isEmpty() && !present.isHidden;
}

bool isSuppliedBy(const ElfObject& object, const ElfImport& import)
{
    const auto& exports = object.symbols.exports;
    for (auto i = exports.constFind(import.name); i != exports.constEnd() && i.key() == import.name;
         ++i) {
        if (isMet(import.version, i.value(), object))
            return true;
    }
    return false;
}

bool isSupplied(const LoadScope& scope, const ElfImport& import)
{
    return std::any_of(
        scope.libraries().begin(), scope.libraries().end(),
        [&](const LoadedLibrary& library) { return isSuppliedBy(*library.object, import); });
}

HostMissingSymbol record(const ElfImport& import, const ElfObject& wantedBy)
{
    HostMissingSymbol missing;
    missing.symbol = QString::fromUtf8(import.name);
    missing.readable = QString::fromUtf8(DemangledName(import.name).text);
    missing.version = QString::fromUtf8(import.version.name);
    missing.wantedBy = wantedBy.path;
    return missing;
}

void addMissing(const ElfObject& object, const LoadScope& scope,
                QVector<HostMissingSymbol>& missing)
{
    for (const ElfImport& import : object.symbols.imports) {
        if (isSupplied(scope, import))
            continue;
        missing.append(record(import, object));
        if (missing.size() <= mostExplained)
            missing.last().misses = nearMisses(import, scope);
    }
}

} // namespace

QVector<HostMissingSymbol> missingSymbols(const LoadScope& scope)
{
    QVector<HostMissingSymbol> missing;
    for (const LoadedLibrary& library : scope.libraries()) {
        if (!library.isOfApplication || scope.isNeededByApplication())
            addMissing(*library.object, scope, missing);
    }
    return missing;
}
