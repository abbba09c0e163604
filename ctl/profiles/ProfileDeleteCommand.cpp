#include "ctl/profiles/ProfileDeleteCommand.h"

#include "ctl/profiles/FamilyOption.h"
#include "ctl/profiles/ProfileEdit.h"

void ProfileDeleteCommand::addOptions(QCommandLineParser& parser) const
{
    ProfileEdit::addOptions(parser);
}

ExitStatus ProfileDeleteCommand::run(const Arguments& arguments, Output& output)
{
    const bool isSection = arguments.count() == 2;
    const ProfileFamily family = FamilyOption::needed(arguments);
    ProfileEdit edit(arguments.at(0));
    edit.make(
        {family,
         arguments.at(1),
         arguments.at(2),
         {},
         isSection ? ProfileChange::Action::DeleteSection : ProfileChange::Action::DeleteKey});
    return edit.end(arguments, output);
}
