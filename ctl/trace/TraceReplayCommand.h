#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace replay`: performs the calls of a recording on the services of this build.
class TraceReplayCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceReplayCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
