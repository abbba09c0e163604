#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists the monitors, or the system metrics, as the service answers them.
class DisplaysListCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(DisplaysListCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
