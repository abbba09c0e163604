#include "inspection/registry/UnkeptName.h"

#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "platform/registry/KeptName.h"

#include <QCoreApplication>

namespace {

struct UnkeptName
{
    Q_DECLARE_TR_FUNCTIONS(UnkeptName)
};

QString text(const QString& name, const QString& entry)
{
    if (KeptName::losesFirst(name))
        return UnkeptName::tr("The first character of the name, the invisible U+FEFF, is left out "
                              "by the registry.");
    const QString later = KeptName::afterRestart(entry);
    if (later == entry)
        return {};
    if (later.isNull())
        return UnkeptName::tr("A value without a name is gone after a restart.");
    const QLatin1Char slash('/');
    return UnkeptName::tr("After a restart the key \"%1\" is called \"%2\": the store cannot tell "
                          "the two apart.")
        .arg(entry.section(slash, 0, 0), later.section(slash, 0, 0));
}

} // namespace

QString unkeptKeyText(const QString& parent, const QString& name)
{
    const QString key = RegistryPath::join(parent, name);
    return text(name, RegistryPath::join(key, QStringLiteral("x")));
}

QString unkeptValueText(const QString& key, const QString& name)
{
    return text(name, StoreEntry::ofValue(key, name));
}
