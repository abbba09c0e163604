#include "ctl/graphics/FontsListCommand.h"

#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "inspection/fonts/CharacterSets.h"
#include "inspection/fonts/FontCatalogue.h"
#include "inspection/fonts/FontPreview.h"

#include <limits>

namespace {

BYTE charSetOf(const Arguments& arguments)
{
    if (!arguments.has("charset"))
        return DEFAULT_CHARSET;
    bool isNumber = false;
    const unsigned int code = arguments.value("charset").toUInt(&isNumber);
    if (!isNumber || code > std::numeric_limits<BYTE>::max())
        throw Failure(ExitStatus::WrongUsage,
                      FontsListCommand::tr("There is no character set \"%1\".")
                          .arg(arguments.value("charset")));
    return static_cast<BYTE>(code);
}

QString yesOrNo(bool isYes)
{
    return isYes ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace

void FontsListCommand::addOptions(QCommandLineParser& parser) const
{
    parser.addOption({QStringLiteral("charset"),
                      tr("Only records of this character set, by its code."),
                      QStringLiteral("CODE")});
}

ExitStatus FontsListCommand::run(const Arguments& arguments, Output& output)
{
    const auto fonts = FontCatalogue::records(arguments.at(0), charSetOf(arguments));
    const FontPreview preview;
    output.begin({Columns::face, Columns::fullName, Columns::style, Columns::charSet,
                  Columns::weight, Columns::italic, Columns::installed});
    for (const RegisteredFont& font : fonts)
        output.record({font.face, font.fullName, font.style, CharacterSets::title(font.charSet),
                       QString::number(font.weight), yesOrNo(font.italic),
                       yesOrNo(preview.isInstalled(font))});
    if (fonts.empty())
        output.note(tr("The service reports no such font."));
    const bool isFiltered = arguments.count() > 0 || arguments.has("charset");
    return fonts.empty() && isFiltered ? ExitStatus::No : ExitStatus::Done;
}
