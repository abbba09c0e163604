#include "inspection/registry/RegistryDifference.h"

#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "platform/registry/StoredValue.h"
#include "platform/registry/TypeName.h"

#include <QCoreApplication>

#include <set>

namespace {

using Kind = RegistryDifference::Kind;
using Entries = RegistryContents::Entries;

struct RegistryDifferences
{
    Q_DECLARE_TR_FUNCTIONS(RegistryDifference)
};

// All keys: those of the marks, and those above any entry.
std::set<QString> keysOf(const Entries& entries)
{
    std::set<QString> keys;
    for (const auto& [path, entry] : entries) {
        QString key = entry.isNull() ? path : RegistryPath::parent(path);
        for (; !key.isEmpty() && keys.insert(key).second; key = RegistryPath::parent(key)) {
        }
    }
    return keys;
}

// Null where there is no value.
QVariant valueAt(const Entries& entries, const QString& path)
{
    const auto found = entries.find(path);
    return found == entries.end() ? QVariant() : found->second;
}

QString words(const QVariant& entry)
{
    if (entry.isNull())
        return {};
    const StoredValue value(entry);
    if (!value.isReadable())
        return RegistryDifferences::tr("unreadable: %1").arg(rawRegistryText(entry));
    return registryTypeName(value.type()) + QLatin1Char(' ') +
           RegistryFormat::editable(value.type(), value.data());
}

bool isSame(const QVariant& first, const QVariant& second)
{
    if (first.isNull() || second.isNull() || first == second)
        return first.isNull() == second.isNull();
    const StoredValue one(first);
    const StoredValue other(second);
    return one.isReadable() && other.isReadable() && one.type() == other.type() &&
           one.data() == other.data();
}

Kind kindOf(bool isBefore, bool isAfter)
{
    if (isBefore && isAfter)
        return Kind::Changed;
    return isAfter ? Kind::Added : Kind::Removed;
}

std::set<QString> pathsOf(const Entries& before, const Entries& after)
{
    std::set<QString> paths;
    for (const Entries* entries : {&before, &after}) {
        for (const auto& each : *entries)
            paths.insert(each.first);
    }
    paths.merge(keysOf(before));
    paths.merge(keysOf(after));
    return paths;
}

} // namespace

std::vector<RegistryDifference> registryDifferences(const RegistryContents& before,
                                                    const RegistryContents& after)
{
    const std::set<QString> keysBefore = keysOf(before.entries());
    const std::set<QString> keysAfter = keysOf(after.entries());
    std::vector<RegistryDifference> differences;
    for (const QString& path : pathsOf(before.entries(), after.entries())) {
        const bool wasKey = keysBefore.count(path) > 0;
        const bool isKey = keysAfter.count(path) > 0;
        if (wasKey != isKey)
            differences.push_back({kindOf(wasKey, isKey), path, {}, {}, {}});
        const QVariant was = valueAt(before.entries(), path);
        const QVariant is = valueAt(after.entries(), path);
        if (!isSame(was, is))
            differences.push_back({kindOf(!was.isNull(), !is.isNull()), RegistryPath::parent(path),
                                   RegistryPath::name(path), words(was), words(is)});
    }
    return differences;
}
