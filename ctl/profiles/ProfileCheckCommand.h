#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Tells the lines that a family drops, replaces or reads otherwise.
class ProfileCheckCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileCheckCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
