#include "ctl/registry/RegistryGetCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/registry/KeyArgument.h"
#include "inspection/registry/ListedValue.h"
#include "inspection/registry/ReadingRemark.h"
#include "inspection/registry/RegistryFormat.h"
#include "inspection/registry/RegistryListing.h"
#include "inspection/registry/RegistryPath.h"
#include "inspection/registry/StoreEntry.h"
#include "platform/registry/TypeName.h"

#include <optional>

namespace {

// As the initialiser of an array, or a number.
QString cText(const RegistryReading& reading)
{
    if (reading.type == REG_DWORD || reading.type == REG_QWORD)
        return QStringLiteral("0x%1").arg(RegistryFormat::number(reading.data),
                                          2 * reading.data.size(), 16, QLatin1Char('0'));
    QStringList bytes;
    for (const char byte : reading.data)
        bytes.append(QStringLiteral("0x") + QString::fromLatin1(QByteArray(1, byte).toHex()));
    return QLatin1Char('{') + bytes.join(QLatin1String(", ")) + QLatin1Char('}');
}

QString formatted(const QString& format, const RegistryReading& reading)
{
    if (format == QLatin1String("hex"))
        return QString::fromLatin1(reading.data.toHex(' '));
    return format == QLatin1String("c") ? cText(reading)
                                        : RegistryFormat::editable(reading.type, reading.data);
}

// Of a value that is there; nothing where the service cannot read what is asked for.
std::optional<QString> textOf(const Arguments& arguments, const QVariant& entry,
                              const RegistryReading& reading)
{
    if (arguments.has("raw"))
        return rawRegistryText(entry);
    if (!reading.readable)
        return std::nullopt;
    return arguments.has("type") ? registryTypeName(reading.type)
                                 : formatted(arguments.value("format"), reading);
}

QString unreadableText(const QString& path, const QString& name, const QVariant& entry,
                       const RegistryReading& reading)
{
    return RegistryGetCommand::tr("\"%1\" of %2 cannot be read: %3")
        .arg(name, RegistryPath::shown(path), readingRemark(reading, entry));
}

// Values that cannot be read are told, and the others printed.
ExitStatus printAll(const QString& path, const Arguments& arguments, Output& output)
{
    ExitStatus status = ExitStatus::Done;
    const auto names = path.isEmpty() ? RegistryIndex::read() : std::make_shared<RegistryIndex>();
    const std::vector<ListedValue> values = ListedValue::ofKey(path, *names);
    const RegistryKey key(path);
    output.begin({Columns::name, Columns::data});
    for (const ListedValue& value : values) {
        const QVariant entry = rawRegistryEntry(value.entryPath());
        if (entry.isNull())
            continue;
        const RegistryReading reading = key.read(value.name());
        const auto text = textOf(arguments, entry, reading);
        if (text) {
            output.record({value.name(), *text});
            continue;
        }
        output.note(unreadableText(path, value.name(), entry, reading));
        status = ExitStatus::No;
    }
    return status;
}

} // namespace

void RegistryGetCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOptions(
        {{QStringLiteral("type"), tr("Prints the type instead of the data.")},
         {QStringLiteral("raw"), tr("Prints the text that the store keeps.")},
         {QStringLiteral("format"),
          tr("How the data is written: text, hex (the bytes that a host library gets) or c."),
          QStringLiteral("FORMAT"), QStringLiteral("text")}});
}

ExitStatus RegistryGetCommand::run(const Arguments& arguments, Output& output)
{
    const QString format = arguments.value("format");
    if (!QStringList({"text", "hex", "c"}).contains(format))
        throw Failure(ExitStatus::WrongUsage, tr("There is no format \"%1\".").arg(format));
    if (arguments.has("type") && arguments.has("raw"))
        throw Failure(ExitStatus::WrongUsage, tr("Either --type or --raw, not both."));
    const QString path = KeyArgument::existing(arguments.at(0));
    if (arguments.count() == 1)
        return printAll(path, arguments, output);
    const QString name = arguments.at(1);
    const QVariant entry = rawRegistryEntry(StoreEntry::ofValue(path, name));
    if (entry.isNull())
        throw Failure(ExitStatus::No,
                      tr("%1 has no value \"%2\".").arg(RegistryPath::shown(path), name));
    const RegistryReading reading = RegistryKey(path).read(name);
    const auto text = textOf(arguments, entry, reading);
    if (!text)
        throw Failure(unreadableText(path, name, entry, reading));
    output.whole(text->toUtf8() + (output.form() == Output::Form::Json ? "" : "\n"), Columns::data);
    return ExitStatus::Done;
}
