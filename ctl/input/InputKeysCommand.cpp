#include "ctl/input/InputKeysCommand.h"

#include "ctl/Output.h"
#include "inspection/input/KeyStates.h"

namespace {

void print(const VirtualKey& key, bool isKnown, Output& output)
{
    output.record({QLatin1String(key.name),
                   QStringLiteral("0x%1").arg(key.code, 2, 16, QLatin1Char('0')),
                   isKnown ? QStringLiteral("yes") : QStringLiteral("no"),
                   KeyStates::isDown(key.code) ? QStringLiteral("down") : QStringLiteral("up")});
}

} // namespace

// Keys that the service does not know always read as up.
ExitStatus InputKeysCommand::run(const Arguments& /*arguments*/, Output& output)
{
    output.begin({Columns::name, Columns::code, Columns::known, Columns::state});
    for (const VirtualKey& key : knownKeys)
        print(key, true, output);
    for (const VirtualKey& key : KeyStates::unknownKeys)
        print(key, false, output);
    return ExitStatus::Done;
}
