#pragma once

#include "ctl/Command.h"

/// Prints the changes of a key as they are saved, by whatever program, until it is interrupted.
class RegistryWatchCommand : public Command
{
public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
