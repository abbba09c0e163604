#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// `trace trim`: some calls of a recording, with what they need, as a recording.
class TraceTrimCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(TraceTrimCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
