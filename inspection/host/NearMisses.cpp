#include "inspection/host/NearMisses.h"

#include "inspection/host/DemangledName.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int mostMisses = 3; // of one symbol

struct HostSymbol
{
    Q_DECLARE_TR_FUNCTIONS(HostSymbol)
};

std::optional<NearMiss::Kind> kindOf(const DemangledName& wanted, const DemangledName& present)
{
    if (wanted.qualified != present.qualified || wanted.text == present.text)
        return std::nullopt;
    if (!wanted.isMangled)
        return NearMiss::Kind::HasCppLinkage;
    return present.isMangled ? NearMiss::Kind::HasOtherSignature : NearMiss::Kind::HasCLinkage;
}

void addVersions(const ElfImport& missing, const ElfObject& object, QVector<NearMiss>& misses)
{
    const QList<ElfSymbolVersion> versions = object.symbols.exports.values(missing.name);
    for (const ElfSymbolVersion& version : versions) {
        const QByteArray name =
            version.name.isEmpty() ? missing.name : missing.name + '@' + version.name;
        misses.append({NearMiss::Kind::HasOtherVersion, name, object.fileName()});
    }
}

// Taking a name apart is slow, so that is only done to those that contain the wanted one's last
// part.
void addSymbols(const DemangledName& wanted, const ElfObject& object, QVector<NearMiss>& misses)
{
    const QList<QByteArray> names = object.symbols.exports.uniqueKeys();
    for (const QByteArray& name : names) {
        if (misses.size() >= mostMisses)
            return;
        if (!name.contains(wanted.last))
            continue;
        if (const auto kind = kindOf(wanted, DemangledName(name)))
            misses.append({*kind, name, object.fileName()});
    }
}

} // namespace

std::optional<NearMiss::Kind> nearMissKind(const QByteArray& wanted, const QByteArray& present)
{
    return kindOf(DemangledName(wanted), DemangledName(present));
}

QVector<NearMiss> nearMisses(const ElfImport& missing, const LoadScope& scope)
{
    QVector<NearMiss> misses;
    const DemangledName wanted(missing.name);
    for (const LoadedLibrary& library : scope.libraries()) {
        if (misses.size() >= mostMisses)
            break;
        addVersions(missing, *library.object, misses);
        addSymbols(wanted, *library.object, misses);
    }
    misses.resize(std::min<int>(misses.size(), mostMisses));
    return misses;
}

QString NearMiss::text() const
{
    const QString shown = QString::fromUtf8(DemangledName(symbol).text);
    switch (kind) {
    case Kind::HasCppLinkage:
        return HostSymbol::tr("%1 has it with C++ linkage: %2").arg(library, shown);
    case Kind::HasCLinkage:
        return HostSymbol::tr("%1 has it with C linkage (extern \"C\"): %2").arg(library, shown);
    case Kind::HasOtherVersion:
        return HostSymbol::tr("%1 has it in another version: %2").arg(library, shown);
    default: return HostSymbol::tr("%1 has it with another signature: %2").arg(library, shown);
    }
}
