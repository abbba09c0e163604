#include "inspection/host/HostCheck.h"

#include "inspection/host/HostFindings.h"
#include "inspection/host/HostFunctions.h"
#include "inspection/host/SymbolCheck.h"

#include <algorithm>
#include <elf.h>

namespace {

bool imports(const ElfObject& library, const char* symbol)
{
    const auto& all = library.symbols.imports;
    return std::any_of(all.begin(), all.end(),
                       [symbol](const ElfImport& import) { return import.name == symbol; });
}

// A function of the same name that the application would not find: of another linkage or signature.
QByteArray otherDefinition(const ElfObject& library, const HostFunction& function)
{
    const QList<QByteArray> symbols = library.symbols.exports.uniqueKeys();
    for (const QByteArray& symbol : symbols) {
        if (symbol.contains(function.name) && nearMissKind(function.symbol, symbol))
            return symbol;
    }
    return QByteArray();
}

void checkFunctions(const ElfObject& library, HostReport& report)
{
    for (const HostFunction& function : hostFunctions()) {
        const bool isDefined = library.symbols.exports.contains(function.symbol);
        report.functions.append({function.name, isDefined});
        const QByteArray other = isDefined ? QByteArray() : otherDefinition(library, function);
        if (!other.isEmpty())
            report.findings.append(hostfindings::ofOtherFunction(function.name, other));
    }
}

void checkProperties(const ElfObject& library, HostReport& report)
{
    report.hasTextRelocations = library.hasTextRelocations;
    report.wantsExecutableStack = library.wantsExecutableStack;
    report.importsServices = imports(library, servicesSymbol);
    if (report.hasTextRelocations)
        report.findings.append(hostfindings::ofTextRelocations(library));
    if (report.wantsExecutableStack)
        report.findings.append(hostfindings::ofStack(library));
    if (report.importsServices)
        report.findings.append(hostfindings::ofServices());
}

bool isForThisSystem(const ElfIdentity& identity)
{
    return identity.system == ELFOSABI_SYSV || identity.system == ELFOSABI_GNU;
}

HostNeed record(const NeededLibrary& need, const LoadScope& scope)
{
    HostNeed record;
    record.name = QString::fromUtf8(need.name);
    record.wantedBy = scope.libraries().at(need.wantedBy).object->path;
    record.path = need.found.object ? need.found.object->path : QString();
    record.by = need.found.by;
    return record;
}

} // namespace

HostCheck::HostCheck(const QString& program, const SearchPlaces& places)
    : m_program(program), m_places(places)
{
}

HostReport HostCheck::check(const QString& path)
{
    HostReport report;
    const std::shared_ptr<const ElfObject> library = m_objects.at(path);
    report.path = library->path;
    report.fault = library->fault;
    checkFile(*library, report);
    // What a library for another machine needs is not here, and nothing of it would be loaded.
    if (report.willLoad()) {
        LoadScope scope(m_places, m_objects);
        scope.load(readableProgram(report), library);
        checkScope(scope, report);
    }
    report.soname = QString::fromUtf8(library->soname);
    if (library->isRead) {
        checkProperties(*library, report);
        checkFunctions(*library, report);
    }
    return report;
}

void HostCheck::checkFile(const ElfObject& library, HostReport& report) const
{
    const ElfIdentity& identity = library.identity;
    if (identity.bits != 0)
        report.machine = identity.text();
    if (library.fault != ElfFault::None)
        report.findings.append(hostfindings::ofFault(library));
    if (identity.bits != 0 && !identity.suits(ElfIdentity::ofThisProcess()))
        report.findings.append(hostfindings::ofMachine(library));
    if (identity.bits != 0 && !isForThisSystem(identity))
        report.findings.append(hostfindings::ofSystem(library));
    if (library.isProgram)
        report.findings.append(hostfindings::ofProgram(library));
    if (library.refusesLoading)
        report.findings.append(hostfindings::ofRefusedLoading(library));
}

std::shared_ptr<const ElfObject> HostCheck::readableProgram(HostReport& report)
{
    std::shared_ptr<const ElfObject> program = m_objects.at(m_program);
    if (program->fault == ElfFault::None)
        return program;
    report.findings.append(hostfindings::ofApplication(m_program, program->fault));
    return nullptr;
}

void HostCheck::checkScope(const LoadScope& scope, HostReport& report) const
{
    const ElfObject& library = *scope.libraries().at(scope.checked()).object;
    if (scope.isNeededByApplication())
        report.findings.append(hostfindings::ofReplacement(library));
    checkNeeds(scope, report);
    checkVersions(scope, report);
    report.versions = productVersions(library, scope);
    checkSymbols(scope, report);
}

void HostCheck::checkNeeds(const LoadScope& scope, HostReport& report) const
{
    for (const NeededLibrary& need : scope.needs()) {
        const LoadedLibrary& wantedBy = scope.libraries().at(need.wantedBy);
        if (!wantedBy.isOfApplication)
            report.needs.append(record(need, scope));
        if (!need.found.object || need.found.object->fault != ElfFault::None)
            report.findings.append(hostfindings::ofNeed(need, wantedBy));
    }
}

void HostCheck::checkVersions(const LoadScope& scope, HostReport& report) const
{
    const QVector<MissingVersion> missing = missingVersions(scope);
    for (const MissingVersion& version : missing)
        report.findings.append(hostfindings::ofVersion(version));
}

void HostCheck::checkSymbols(const LoadScope& scope, HostReport& report) const
{
    const auto& needs = scope.needs();
    const bool areAllThere = std::all_of(needs.begin(), needs.end(), [](const NeededLibrary& need) {
        return need.found.object && need.found.object->fault == ElfFault::None;
    });
    report.missing = missingSymbols(scope);
    for (const HostMissingSymbol& symbol : qAsConst(report.missing))
        report.findings.append(hostfindings::ofSymbol(symbol, areAllThere));
}
