#include "ctl/profiles/ProfileGetCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEntries.h"
#include "inspection/profiles/FamilyLines.h"

namespace {

// The narrow family's answer does not tell a missing value from an empty one: the lines do.
std::optional<QString> answer(const QString& file, ProfileFamily family, const QString& section,
                              const QString& key)
{
    const ProfileReader reader(file);
    if (family == ProfileFamily::Wide)
        return reader.wide(section, key);
    ProfileChange change;
    change.family = family;
    change.section = section;
    change.key = key;
    return FamilyLines(file, family).hasEntryOf(change)
               ? std::make_optional(reader.narrow(section, key))
               : std::nullopt;
}

} // namespace

void ProfileGetCommand::addOptions(QCommandLineParser& parser) const
{
    FamilyOption::add(parser);
}

// With a family, its answer alone; without, a record for each family that finds the entry.
ExitStatus ProfileGetCommand::run(const Arguments& arguments, Output& output)
{
    const auto family = FamilyOption::of(arguments);
    const QString file = existingProfile(arguments.at(0));
    const auto read = [&](ProfileFamily each) {
        return answer(file, each, arguments.at(1), arguments.at(2));
    };
    const auto wide = family == ProfileFamily::Narrow ? std::nullopt : read(ProfileFamily::Wide);
    const auto narrow = family == ProfileFamily::Wide ? std::nullopt : read(ProfileFamily::Narrow);
    if (!wide && !narrow)
        throw Failure(ExitStatus::No, tr("%1 has no entry \"%2\" in the section \"%3\".")
                                          .arg(arguments.at(0), arguments.at(2), arguments.at(1)));
    if (family) {
        const QString text = wide ? *wide : *narrow;
        output.whole(text.toUtf8() + (output.form() == Output::Form::Json ? "" : "\n"),
                     Columns::data);
        return ExitStatus::Done;
    }
    output.begin({Columns::family, Columns::data});
    if (wide)
        output.record({QStringLiteral("wide"), *wide});
    if (narrow)
        output.record({QStringLiteral("narrow"), *narrow});
    return ExitStatus::Done;
}
