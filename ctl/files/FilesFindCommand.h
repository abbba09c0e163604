#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists the find records that a host library gets for a pattern.
class FilesFindCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(FilesFindCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
