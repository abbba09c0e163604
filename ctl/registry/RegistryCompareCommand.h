#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Compares two keys, stores or registry files.
class RegistryCompareCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryCompareCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
