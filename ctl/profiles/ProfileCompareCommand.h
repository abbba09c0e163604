#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists the entries that the two families read differently.
class ProfileCompareCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileCompareCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
