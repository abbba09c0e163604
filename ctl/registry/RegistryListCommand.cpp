#include "ctl/registry/RegistryListCommand.h"

#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/ListedValue.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/RegistryWalk.h"

namespace {

void printKey(const QString& path, Output& output)
{
    output.record({QStringLiteral("key"), RegistryPath::shown(path), {}, {}, {}, {}});
}

// People get the beginning of long data, as in the window; scripts get all of it.
void printValue(const QString& path, const ListedValue& value, Output& output)
{
    if (rawRegistryEntry(value.entryPath()).isNull())
        return;
    const QString key = RegistryPath::shown(path);
    if (!value.isReadable())
        return output.record(
            {QStringLiteral("unreadable"), key, value.name(), {}, value.raw(), value.remark()},
            Output::Tone::Bad);
    const bool isForPeople = output.form() == Output::Form::Table;
    output.record({QStringLiteral("value"), key, value.name(), value.typeText(),
                   isForPeople ? value.dataText() : value.wholeData(), value.remark()});
}

void printValues(const QString& path, Output& output)
{
    const auto names = path.isEmpty() ? RegistryIndex::read() : std::make_shared<RegistryIndex>();
    const std::vector<ListedValue> values = ListedValue::ofKey(path, *names);
    for (ListedValue value : values)
        printValue(path, value, output);
}

void listBelow(const QString& path, Output& output)
{
    RegistryWalk walk(path);
    for (auto step = walk.next(); step != RegistryWalk::Step::End; step = walk.next()) {
        if (step != RegistryWalk::Step::Key)
            continue;
        if (walk.path() != path)
            printKey(walk.path(), output);
        printValues(walk.path(), output);
    }
}

void listKey(const QString& path, Output& output)
{
    const QStringList keys = listRegistryKey(*RegistryIndex::read(), path).allKeys();
    for (const QString& key : keys)
        printKey(RegistryPath::join(path, key), output);
    printValues(path, output);
}

} // namespace

void RegistryListCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption(
        {{QStringLiteral("r"), QStringLiteral("recursive")}, tr("Everything below the key, too.")});
}

ExitStatus RegistryListCommand::run(const Arguments& arguments, Output& output)
{
    const QString path = KeyArgument::existing(arguments.at(0));
    output.begin({Columns::kind, Columns::key, Columns::name, Columns::type, Columns::data,
                  Columns::remark});
    if (arguments.has("recursive"))
        listBelow(path, output);
    else
        listKey(path, output);
    return ExitStatus::Done;
}
