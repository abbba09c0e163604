#include "inspection/host/HostFindings.h"

#include "inspection/host/DemangledName.h"
#include "inspection/host/HostFunctions.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

using Kind = HostFinding::Kind;
using Severity = HostFinding::Severity;

struct HostCheckText
{
    Q_DECLARE_TR_FUNCTIONS(HostCheckText)
};

QString fileNameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

QString withSentence(const QString& text, const QString& sentence)
{
    return text + QLatin1Char(' ') + sentence;
}

} // namespace

namespace hostfindings {

HostFinding ofFault(const ElfObject& library)
{
    return {Severity::Error, Kind::File, library.path, elfFaultText(library.fault)};
}

HostFinding ofMachine(const ElfObject& library)
{
    return {Severity::Error, Kind::Machine, library.identity.machineName(),
            HostCheckText::tr("It is made for %1; what is loaded here is made for %2.")
                .arg(library.identity.text(), ElfIdentity::ofThisProcess().text())};
}

HostFinding ofSystem(const ElfObject& library)
{
    return {Severity::Error, Kind::Machine, library.fileName(),
            HostCheckText::tr("It is made for another operating system (ABI %1).")
                .arg(library.identity.system)};
}

HostFinding ofProgram(const ElfObject& library)
{
    return {Severity::Error, Kind::Type, library.fileName(),
            HostCheckText::tr("It is a program, which cannot be loaded like a library.")};
}

HostFinding ofRefusedLoading(const ElfObject& library)
{
    return {Severity::Warning, Kind::Type, library.fileName(),
            HostCheckText::tr("It can be loaded with a program that needs it, but not later: it is "
                              "marked so.")};
}

HostFinding ofApplication(const QString& application, ElfFault fault)
{
    return {
        Severity::Warning, Kind::Application, application,
        HostCheckText::tr("What the application supplies is unknown, because %1 cannot be read. "
                          "%2")
            .arg(application, elfFaultText(fault))};
}

HostFinding ofReplacement(const ElfObject& library)
{
    return {
        Severity::Note, Kind::Application, library.fileName(),
        HostCheckText::tr("The application needs a library of this name and would get this one, "
                          "so what the application wants of it is checked too.")};
}

HostFinding ofNeed(const NeededLibrary& need, const LoadedLibrary& wantedBy)
{
    const QString name = QString::fromUtf8(need.name);
    const QString wanting = wantedBy.object->fileName();
    // Without the application's own libraries there is no process to load anything into; that is
    // not the fault of the library that is checked.
    const Severity severity = wantedBy.isOfApplication ? Severity::Warning : Severity::Error;
    if (need.found.object)
        return {severity, Kind::Library, name,
                HostCheckText::tr("%1, which %2 needs, is found as %3, but cannot be loaded. %4")
                    .arg(name, wanting, need.found.object->path,
                         elfFaultText(need.found.object->fault))};
    const QString text = HostCheckText::tr("%1, which %2 needs, is not found.").arg(name, wanting);
    if (need.found.passedOver.isEmpty())
        return {severity, Kind::Library, name, text};
    return {
        severity, Kind::Library, name,
        withSentence(text, HostCheckText::tr("Passed over, because made for another machine: %1")
                               .arg(need.found.passedOver.join(QStringLiteral(", "))))};
}

HostFinding ofVersion(const MissingVersion& version)
{
    const QString wanted = QString::fromUtf8(version.need.version);
    const QString text =
        HostCheckText::tr("%1 wants version %2 of %3, which the one here has not got.")
            .arg(fileNameOf(version.wantedBy), wanted, QString::fromUtf8(version.need.library));
    const Severity severity = version.isWeak() ? Severity::Warning : Severity::Error;
    if (version.here.isEmpty())
        return {severity, Kind::Version, wanted, text};
    return {severity, Kind::Version, wanted,
            withSentence(text, HostCheckText::tr("The newest one here is %1.").arg(version.here))};
}

HostFinding ofSymbol(const HostMissingSymbol& symbol, bool areAllLibrariesThere)
{
    const QString name = symbol.version.isEmpty()
                             ? symbol.readable
                             : symbol.readable + QLatin1Char('@') + symbol.version;
    QString text = HostCheckText::tr("Nothing here supplies %1, which %2 wants.")
                       .arg(name, fileNameOf(symbol.wantedBy));
    for (const NearMiss& miss : symbol.misses)
        text = withSentence(text, miss.text());
    if (areAllLibrariesThere)
        return {Severity::Error, Kind::Symbol, symbol.symbol, text};
    return {Severity::Warning, Kind::Symbol, symbol.symbol,
            withSentence(text, HostCheckText::tr("A library that is not found may have it."))};
}

HostFinding ofTextRelocations(const ElfObject& library)
{
    return {
        Severity::Warning, Kind::TextRelocation, library.fileName(),
        HostCheckText::tr("Its code is altered when it is loaded (text relocations), which some "
                          "systems forbid.")};
}

HostFinding ofStack(const ElfObject& library)
{
    return {Severity::Warning, Kind::Stack, library.fileName(),
            HostCheckText::tr("It wants an executable stack, which some systems forbid.")};
}

HostFinding ofServices()
{
    return {Severity::Note, Kind::Services, servicesSymbol,
            HostCheckText::tr("It uses %1 itself, past setPlatformServices: only a program that "
                              "exports it can load the library.")
                .arg(QLatin1String(servicesSymbol))};
}

HostFinding ofOtherFunction(const QString& function, const QByteArray& defined)
{
    return {
        Severity::Warning, Kind::HostFunction, function,
        HostCheckText::tr("It defines %1 as %2, under which the application does not look for it.")
            .arg(function, QString::fromUtf8(defined))};
}

} // namespace hostfindings
