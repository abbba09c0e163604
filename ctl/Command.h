#pragma once

#include "ctl/Arguments.h"
#include "ctl/ExitStatus.h"

class Output;

/// A command: arguments in, records out.
class Command
{
public:
    Command() = default;
    virtual ~Command();

    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// Adds the options of this command; none by default.
    virtual void addOptions(QCommandLineParser& parser) const;

    /// Does the work. Throws a Failure where it cannot be done.
    virtual ExitStatus run(const Arguments& arguments, Output& output) = 0;
};
