#include "ctl/CommandTable.h"

#include "ctl/host/HostCheckCommand.h"
#include "ctl/registry/RegistryCheckCommand.h"
#include "ctl/registry/RegistryCompareCommand.h"
#include "ctl/registry/RegistryCopyCommand.h"
#include "ctl/registry/RegistryDeleteCommand.h"
#include "ctl/registry/RegistryExportCommand.h"
#include "ctl/registry/RegistryFindCommand.h"
#include "ctl/registry/RegistryGetCommand.h"
#include "ctl/registry/RegistryImportCommand.h"
#include "ctl/registry/RegistryListCommand.h"
#include "ctl/registry/RegistryRenameCommand.h"
#include "ctl/registry/RegistrySetCommand.h"

#include <algorithm>
#include <limits>

namespace {

template <typename Made>
std::unique_ptr<Command> made()
{
    return std::make_unique<Made>();
}

} // namespace

const std::vector<CommandTable::Row>& CommandTable::rows()
{
    static const std::vector<Row> all = {
        {"registry", "list", "[KEY]", QT_TR_NOOP("Lists sub-keys and values."), 0, 1, Needs::Store,
         made<RegistryListCommand>},
        {"registry", "get", "KEY VALUE", QT_TR_NOOP("Prints the data of a value."), 2, 2,
         Needs::Store, made<RegistryGetCommand>},
        {"registry", "set", "KEY VALUE DATA", QT_TR_NOOP("Sets a value."), 3, 3, Needs::NewStore,
         made<RegistrySetCommand>},
        {"registry", "delete", "KEY [VALUE]", QT_TR_NOOP("Deletes a value or a key."), 1, 2,
         Needs::Store, made<RegistryDeleteCommand>},
        {"registry", "rename", "KEY [VALUE] NAME", QT_TR_NOOP("Renames a key or a value."), 2, 3,
         Needs::Store, made<RegistryRenameCommand>},
        {"registry", "copy", "KEY NEWKEY", QT_TR_NOOP("Copies a key with everything below it."), 2,
         2, Needs::Store, made<RegistryCopyCommand>},
        {"registry", "find", "TEXT [KEY]", QT_TR_NOOP("Looks for a text in names and data."), 1, 2,
         Needs::Store, made<RegistryFindCommand>},
        {"registry", "export", "[KEY] [FILE]",
         QT_TR_NOOP("Writes a key with everything below it into a registry file."), 0, 2,
         Needs::Store, made<RegistryExportCommand>},
        {"registry", "import", "FILE", QT_TR_NOOP("Carries out the statements of a registry file."),
         1, 1, Needs::NewStore, made<RegistryImportCommand>},
        {"registry", "compare", "A B", QT_TR_NOOP("Compares two keys, stores or registry files."),
         2, 2, Needs::NewStore, made<RegistryCompareCommand>},
        {"registry", "check", "[KEY]",
         QT_TR_NOOP("Lists what host libraries cannot read or read otherwise than written."), 0, 1,
         Needs::Store, made<RegistryCheckCommand>},
        {"host", "check", "LIBRARY...",
         QT_TR_NOOP("Tells whether host libraries can be loaded here, and if not, why."), 1,
         std::numeric_limits<int>::max(), Needs::Nothing, made<HostCheckCommand>},
    };
    return all;
}

const CommandTable::Row* CommandTable::find(const QString& group, const QString& name)
{
    const auto found = std::find_if(rows().begin(), rows().end(), [&](const Row& row) {
        return group == QLatin1String(row.group) && name == QLatin1String(row.name);
    });
    return found == rows().end() ? nullptr : &*found;
}

bool CommandTable::hasGroup(const QString& group)
{
    return std::any_of(rows().begin(), rows().end(),
                       [&](const Row& row) { return group == QLatin1String(row.group); });
}
