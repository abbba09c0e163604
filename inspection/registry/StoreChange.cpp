#include "inspection/registry/StoreChange.h"

#include "inspection/log/ChangeLine.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"

namespace {

// Null for an entry that is not there. The mark of a created key is told as the file has it.
QString textOf(const std::optional<QVariant>& entry)
{
    if (!entry)
        return {};
    if (entry->isNull())
        return QStringLiteral("@Invalid()");
    const QString text = rawRegistryText(*entry);
    return text.isNull() ? QString(QLatin1String("")) : text;
}

} // namespace

QString auditLine(const EntryChange& change)
{
    return changeLine(RegistryPath::shown(RegistryPath::parent(change.path)),
                      RegistryPath::name(change.path), textOf(change.before), textOf(change.after));
}
