#include "ctl/CommandTable.h"

#include "ctl/crypto/CryptoBase64Command.h"
#include "ctl/crypto/CryptoDecryptCommand.h"
#include "ctl/crypto/CryptoDigestCommand.h"
#include "ctl/crypto/CryptoEncryptCommand.h"
#include "ctl/files/FilesFindCommand.h"
#include "ctl/files/FilesStatCommand.h"
#include "ctl/graphics/DisplaysListCommand.h"
#include "ctl/graphics/FontsListCommand.h"
#include "ctl/host/HostCheckCommand.h"
#include "ctl/host/HostNewCommand.h"
#include "ctl/input/InputKeysCommand.h"
#include "ctl/profiles/ProfileCheckCommand.h"
#include "ctl/profiles/ProfileCompareCommand.h"
#include "ctl/profiles/ProfileDeleteCommand.h"
#include "ctl/profiles/ProfileGetCommand.h"
#include "ctl/profiles/ProfileListCommand.h"
#include "ctl/profiles/ProfileMergeCommand.h"
#include "ctl/profiles/ProfileSetCommand.h"
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
#include "ctl/registry/RegistryWatchCommand.h"
#include "ctl/trace/TraceDiffCommand.h"
#include "ctl/trace/TraceDumpCommand.h"
#include "ctl/trace/TraceLeaksCommand.h"
#include "ctl/trace/TraceRecordCommand.h"
#include "ctl/trace/TraceStatCommand.h"
#include "ctl/trace/TraceTrimCommand.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

constexpr int anyNumber = std::numeric_limits<int>::max();

template <typename Made>
std::unique_ptr<Command> made()
{
    return std::make_unique<Made>();
}

using Needs = CommandTable::Needs;

constexpr CommandTable::Row table[] = {
    {"registry", "list", "[KEY]", QT_TRANSLATE_NOOP("CommandTable", "Lists sub-keys and values."),
     0, 1, Needs::Store, made<RegistryListCommand>},
    {"registry", "get", "KEY [VALUE]",
     QT_TRANSLATE_NOOP("CommandTable", "Prints the data of a value, or of all values of a key."), 1,
     2, Needs::Store, made<RegistryGetCommand>},
    {"registry", "set", "KEY VALUE DATA", QT_TRANSLATE_NOOP("CommandTable", "Sets a value."), 3, 3,
     Needs::NewStore, made<RegistrySetCommand>},
    {"registry", "delete", "KEY [VALUE]",
     QT_TRANSLATE_NOOP("CommandTable", "Deletes a value or a key."), 1, 2, Needs::ChangedStore,
     made<RegistryDeleteCommand>},
    {"registry", "rename", "KEY [VALUE] NAME",
     QT_TRANSLATE_NOOP("CommandTable", "Renames a key or a value."), 2, 3, Needs::ChangedStore,
     made<RegistryRenameCommand>},
    {"registry", "copy", "KEY NEWKEY",
     QT_TRANSLATE_NOOP("CommandTable", "Copies a key with everything below it."), 2, 2,
     Needs::ChangedStore, made<RegistryCopyCommand>},
    {"registry", "find", "TEXT [KEY]",
     QT_TRANSLATE_NOOP("CommandTable", "Looks for a text in names and data."), 1, 2, Needs::Store,
     made<RegistryFindCommand>},
    {"registry", "export", "[KEY] [FILE]",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Writes a key with everything below it into a registry file."),
     0, 2, Needs::Store, made<RegistryExportCommand>},
    {"registry", "import", "FILE",
     QT_TRANSLATE_NOOP("CommandTable", "Carries out the statements of a registry file."), 1, 1,
     Needs::NewStore, made<RegistryImportCommand>},
    {"registry", "compare", "A B",
     QT_TRANSLATE_NOOP("CommandTable", "Compares two keys, stores or registry files."), 2, 2,
     Needs::AnyStore, made<RegistryCompareCommand>},
    {"registry", "check", "[KEY]",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Lists what host libraries cannot read or read otherwise than written."),
     0, 1, Needs::Store, made<RegistryCheckCommand>},
    {"registry", "watch", "[KEY]",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Prints changes as they are saved, until it is interrupted."),
     0, 1, Needs::AnyStore, made<RegistryWatchCommand>},
    {"profile", "list", "FILE [SECTION [KEY]]",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Lists what the families find in a profile, and what they read."),
     1, 3, Needs::Nothing, made<ProfileListCommand>},
    {"profile", "get", "FILE SECTION KEY",
     QT_TRANSLATE_NOOP("CommandTable", "Prints what the families read."), 3, 3, Needs::Nothing,
     made<ProfileGetCommand>},
    {"profile", "set", "FILE SECTION KEY VALUE",
     QT_TRANSLATE_NOOP("CommandTable", "Writes a value through one of the families."), 4, 4,
     Needs::Nothing, made<ProfileSetCommand>},
    {"profile", "delete", "FILE SECTION [KEY]",
     QT_TRANSLATE_NOOP("CommandTable", "Deletes what a family reads as a key or a section."), 2, 3,
     Needs::Nothing, made<ProfileDeleteCommand>},
    {"profile", "merge", "FILE",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Writes all entries of the profile that is the standard input."),
     1, 1, Needs::Nothing, made<ProfileMergeCommand>},
    {"profile", "check", "FILE...",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Tells the lines that a family drops, replaces or reads otherwise."),
     1, anyNumber, Needs::Nothing, made<ProfileCheckCommand>},
    {"profile", "compare", "FILE",
     QT_TRANSLATE_NOOP("CommandTable", "Lists what the two families read differently."), 1, 1,
     Needs::Nothing, made<ProfileCompareCommand>},
    {"files", "find", "PATTERN",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Lists the find records that a host library gets for a pattern."),
     1, 1, Needs::Nothing, made<FilesFindCommand>},
    {"files", "stat", "PATH",
     QT_TRANSLATE_NOOP("CommandTable", "Prints what the directory service answers about a path."),
     1, 1, Needs::Nothing, made<FilesStatCommand>},
    {"fonts", "list", "[FACE]",
     QT_TRANSLATE_NOOP("CommandTable", "Lists the records of the font service."), 0, 1,
     Needs::Display, made<FontsListCommand>},
    {"displays", "list", "",
     QT_TRANSLATE_NOOP("CommandTable", "Lists the monitors as the service answers them."), 0, 0,
     Needs::Display, made<DisplaysListCommand>},
    {"input", "keys", "",
     QT_TRANSLATE_NOOP("CommandTable", "Lists what the key-state service answers."), 0, 0,
     Needs::Display, made<InputKeysCommand>},
    {"crypto", "encrypt", "[FILE]",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Encrypts a file or the standard input as host libraries do it."),
     0, 1, Needs::Nothing, made<CryptoEncryptCommand>},
    {"crypto", "decrypt", "[FILE]",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Decrypts a file or the standard input, or tells why that fails."),
     0, 1, Needs::Nothing, made<CryptoDecryptCommand>},
    {"crypto", "digest", "[FILE]",
     QT_TRANSLATE_NOOP("CommandTable", "Prints the digests of a file or the standard input."), 0, 1,
     Needs::Nothing, made<CryptoDigestCommand>},
    {"crypto", "base64", "[FILE]",
     QT_TRANSLATE_NOOP("CommandTable", "Encodes or decodes URL-safe Base64."), 0, 1, Needs::Nothing,
     made<CryptoBase64Command>},
    {"host", "check", "LIBRARY...",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Tells whether host libraries can be loaded here, and if not, why."),
     1, anyNumber, Needs::Nothing, made<HostCheckCommand>},
    {"host", "new", "NAME",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Writes a host library that builds and loads at once, to begin with."),
     1, 1, Needs::Nothing, made<HostNewCommand>},
    {"trace", "record", "PROGRAM [ARGUMENT]...",
     QT_TRANSLATE_NOOP("CommandTable", "Runs a program and records the calls of its services."), 1,
     anyNumber, Needs::Nothing, made<TraceRecordCommand>},
    {"trace", "dump", "FILE", QT_TRANSLATE_NOOP("CommandTable", "Prints the calls of a recording."),
     1, 1, Needs::Nothing, made<TraceDumpCommand>},
    {"trace", "stat", "FILE",
     QT_TRANSLATE_NOOP("CommandTable",
                       "Counts calls, failures and time, and what was asked for and absent."),
     1, 1, Needs::Nothing, made<TraceStatCommand>},
    {"trace", "leaks", "FILE",
     QT_TRANSLATE_NOOP("CommandTable", "Lists handles and arrays that were never given back."), 1,
     1, Needs::Nothing, made<TraceLeaksCommand>},
    {"trace", "diff", "A B", QT_TRANSLATE_NOOP("CommandTable", "Compares two recordings."), 2, 2,
     Needs::Nothing, made<TraceDiffCommand>},
    {"trace", "trim", "FILE [NEWFILE]",
     QT_TRANSLATE_NOOP("CommandTable", "Keeps some calls of a recording, with what they need."), 1,
     2, Needs::Nothing, made<TraceTrimCommand>},
};

} // namespace

const std::vector<CommandTable::Row>& CommandTable::rows()
{
    static const std::vector<Row> all(std::begin(table), std::end(table));
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
