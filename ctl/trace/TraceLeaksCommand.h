#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace leaks`: what was made and never given back.
class TraceLeaksCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceLeaksCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
