#include "inspection/host/VersionCheck.h"

#include <QVersionNumber>

#include <algorithm>

namespace {

struct Product
{
    const char* name;
    const char* prefix; // of its versions, which a number follows
};

constexpr Product products[] = {
    {"glibc", "GLIBC_"}, {"libstdc++", "GLIBCXX_"}, {"libstdc++ ABI", "CXXABI_"}, {"Qt", "Qt_"}};

// Null for a version that has another prefix, or more than a number behind it.
QVersionNumber numberOf(const QByteArray& version, const QByteArray& prefix)
{
    if (!version.startsWith(prefix))
        return QVersionNumber();
    const QString text = QString::fromLatin1(version.mid(prefix.size()));
    // Qt could say where the number ends, but declares the call as one without a side effect: the
    // compiler may take what it has said away.
    const QVersionNumber number = QVersionNumber::fromString(text);
    return number.toString() == text ? number : QVersionNumber();
}

QVersionNumber newest(const QByteArrayList& versions, const QByteArray& prefix)
{
    QVersionNumber best;
    for (const QByteArray& version : versions)
        best = std::max(best, numberOf(version, prefix));
    return best;
}

QByteArrayList offeredBy(const QByteArray& library, const LoadScope& scope)
{
    const int place = scope.placeOf(library);
    return place < 0 ? QByteArrayList() : scope.libraries().at(place).object->versions;
}

QString newestLike(const QByteArray& version, const QByteArrayList& offered)
{
    const QByteArray prefix = version.left(version.indexOf('_') + 1);
    const QVersionNumber best = newest(offered, prefix);
    return best.isNull() ? QString() : QString::fromUtf8(prefix) + best.toString();
}

void addMissing(const ElfObject& object, const LoadScope& scope, QVector<MissingVersion>& missing)
{
    for (const ElfVersionNeed& need : object.versionNeeds) {
        const QByteArrayList offered = offeredBy(need.library, scope);
        // A library without versions suits whatever is wanted of it.
        if (!offered.isEmpty() && !offered.contains(need.version))
            missing.append({need, object.path, newestLike(need.version, offered)});
    }
}

} // namespace

QVector<MissingVersion> missingVersions(const LoadScope& scope)
{
    QVector<MissingVersion> missing;
    for (const LoadedLibrary& library : scope.libraries()) {
        if (!library.isOfApplication)
            addMissing(*library.object, scope, missing);
    }
    return missing;
}

QVector<HostVersion> productVersions(const ElfObject& library, const LoadScope& scope)
{
    QVector<HostVersion> versions;
    for (const Product& product : products) {
        QVersionNumber wanted;
        QVersionNumber here;
        for (const ElfVersionNeed& need : library.versionNeeds) {
            const QVersionNumber number = numberOf(need.version, product.prefix);
            if (number.isNull())
                continue;
            wanted = std::max(wanted, number);
            here = std::max(here, newest(offeredBy(need.library, scope), product.prefix));
        }
        if (!wanted.isNull())
            versions.append({product.name, wanted.toString(), here.toString()});
    }
    return versions;
}
