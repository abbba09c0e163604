#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace test`: replays all recordings of a folder.
class TraceTestCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceTestCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
