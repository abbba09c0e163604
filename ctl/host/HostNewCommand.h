#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Writes a host library that builds and loads at once, for somebody to begin with.
class HostNewCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(HostNewCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
