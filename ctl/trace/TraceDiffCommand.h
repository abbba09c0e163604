#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace diff`: what differs between two recordings.
class TraceDiffCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceDiffCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
