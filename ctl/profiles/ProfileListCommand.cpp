#include "ctl/profiles/ProfileListCommand.h"

#include "ctl/Output.h"
#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEntries.h"

namespace {

using Family = std::optional<ProfileFamily>;

// An argument that is not given takes everything.
bool isWanted(const QString& wanted, const QString& name)
{
    return wanted.isNull() || wanted == name;
}

QString finders(bool isWide, bool isNarrow)
{
    if (isWide && isNarrow)
        return QStringLiteral("both");
    if (isWide)
        return QStringLiteral("wide");
    return isNarrow ? QStringLiteral("narrow") : QStringLiteral("none");
}

bool print(const ProfileEntries& entries, int index, const Family& family, Output& output)
{
    const ProfileReading reading = entries.reading(index);
    const bool isWide = reading.wide.has_value();
    const bool isNarrow = entries.isNarrow(index);
    if (family && !(*family == ProfileFamily::Wide ? isWide : isNarrow))
        return false;
    output.record({reading.section, reading.key, finders(isWide, isNarrow),
                   reading.wide.value_or(QString()), reading.narrow});
    return true;
}

} // namespace

void ProfileListCommand::addOptions(QCommandLineParser& parser) const
{
    FamilyOption::add(parser);
}

ExitStatus ProfileListCommand::run(const Arguments& arguments, Output& output)
{
    const Family family = FamilyOption::of(arguments);
    const ProfileEntries entries(arguments.at(0));
    output.begin({Columns::section, Columns::key, Columns::found, Columns::wide, Columns::narrow});
    bool isAny = false;
    for (int i = 0; i < entries.count(); ++i) {
        const auto [section, key] = entries.name(i);
        if (isWanted(arguments.at(1), section) && isWanted(arguments.at(2), key))
            isAny = print(entries, i, family, output) || isAny;
    }
    return isAny || arguments.count() == 1 ? ExitStatus::Done : ExitStatus::No;
}
