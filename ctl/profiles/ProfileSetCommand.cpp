#include "ctl/profiles/ProfileSetCommand.h"

#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEdit.h"

void ProfileSetCommand::addOptions(QCommandLineParser& parser) const
{
    ProfileEdit::addOptions(parser);
}

ExitStatus ProfileSetCommand::run(const Arguments& arguments, Output& output)
{
    const ProfileFamily family = FamilyOption::needed(arguments);
    ProfileEdit edit(arguments.at(0));
    edit.make(
        {family, arguments.at(1), arguments.at(2), arguments.at(3), ProfileChange::Action::Set});
    return edit.end(arguments, output);
}
