#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Prints what the directory service answers about a path.
class FilesStatCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(FilesStatCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
