#include "ctl/profiles/ProfileCompareCommand.h"

#include "ctl/Output.h"
#include "ctl/profiles/ProfileEntries.h"

ExitStatus ProfileCompareCommand::run(const Arguments& arguments, Output& output)
{
    const ProfileEntries entries(arguments.at(0));
    output.begin({Columns::section, Columns::key, Columns::wide, Columns::narrow});
    bool isAny = false;
    for (int i = 0; i < entries.count(); ++i) {
        const ProfileReading reading = entries.reading(i);
        if (reading.wide.has_value() == entries.isNarrow(i) && !reading.differs())
            continue;
        output.record(
            {reading.section, reading.key, reading.wide.value_or(QString()), reading.narrow});
        isAny = true;
    }
    return isAny ? ExitStatus::No : ExitStatus::Done;
}
