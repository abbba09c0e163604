#pragma once

#include "inspection/host/VersionCheck.h"

/// What a check has found, in words. Each function makes one finding of it.
namespace hostfindings {

HostFinding ofFault(const ElfObject& library);
HostFinding ofMachine(const ElfObject& library);
HostFinding ofSystem(const ElfObject& library);
HostFinding ofProgram(const ElfObject& library);
HostFinding ofRefusedLoading(const ElfObject& library);

/// `application` is the path of the one that cannot be asked, and why.
HostFinding ofApplication(const QString& application, ElfFault fault);

/// The library takes the place of the application's own one.
HostFinding ofReplacement(const ElfObject& library);

/// The need was not found, or what was found cannot be loaded.
HostFinding ofNeed(const NeededLibrary& need, const LoadedLibrary& wantedBy);

HostFinding ofVersion(const MissingVersion& version);

/// `areAllLibrariesThere` is false where one of those that were not found may have the symbol.
HostFinding ofSymbol(const HostMissingSymbol& symbol, bool areAllLibrariesThere);

HostFinding ofTextRelocations(const ElfObject& library);
HostFinding ofStack(const ElfObject& library);
HostFinding ofServices();

/// `defined` is what the library has in place of the function.
HostFinding ofOtherFunction(const QString& function, const QByteArray& defined);

} // namespace hostfindings
