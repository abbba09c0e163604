#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Prints what a family reads.
class ProfileGetCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileGetCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
