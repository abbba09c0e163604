#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists what host libraries cannot read or read otherwise than written.
class RegistryCheckCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryCheckCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
