#include "ctl/profiles/FamilyOption.h"

#include "ctl/Arguments.h"
#include "ctl/Failure.h"

#include <QCoreApplication>

namespace {

struct FamilyOptionTexts
{
    Q_DECLARE_TR_FUNCTIONS(FamilyOption)
};

} // namespace

void FamilyOption::add(QCommandLineParser& parser)
{
    parser.addOptions(
        {{QStringLiteral("wide"), FamilyOptionTexts::tr("The wide family of calls.")},
         {QStringLiteral("narrow"), FamilyOptionTexts::tr("The narrow family of calls.")}});
}

std::optional<ProfileFamily> FamilyOption::of(const Arguments& arguments)
{
    if (arguments.has("wide") && arguments.has("narrow"))
        throw Failure(ExitStatus::WrongUsage,
                      FamilyOptionTexts::tr("Either --wide or --narrow, not both."));
    if (arguments.has("wide"))
        return ProfileFamily::Wide;
    return arguments.has("narrow") ? std::make_optional(ProfileFamily::Narrow) : std::nullopt;
}

ProfileFamily FamilyOption::needed(const Arguments& arguments)
{
    const auto family = of(arguments);
    if (!family)
        throw Failure(
            ExitStatus::WrongUsage,
            FamilyOptionTexts::tr("Say --wide or --narrow: the families write differently."));
    return *family;
}
