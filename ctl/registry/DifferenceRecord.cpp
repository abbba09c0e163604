#include "ctl/registry/DifferenceRecord.h"

#include "ctl/Output.h"
#include "inspection/registry/RegistryDifference.h"

namespace {

using Kind = RegistryDifference::Kind;

QString shownKey(const QString& path)
{
    return QString(path).replace(QLatin1Char('/'), QLatin1Char('\\'));
}

} // namespace

void DifferenceRecord::begin(Output& output)
{
    output.begin({Columns::change, Columns::key, Columns::name, Columns::before, Columns::after});
}

void DifferenceRecord::print(const RegistryDifference& difference, Output& output)
{
    const bool isAdded = difference.kind == Kind::Added;
    const QString change = isAdded                            ? QStringLiteral("added")
                           : difference.kind == Kind::Removed ? QStringLiteral("removed")
                                                              : QStringLiteral("changed");
    const Output::Tone tone = isAdded                            ? Output::Tone::Good
                              : difference.kind == Kind::Removed ? Output::Tone::Bad
                                                                 : Output::Tone::Plain;
    output.record(
        {change, shownKey(difference.key), difference.name, difference.before, difference.after},
        tone);
}
