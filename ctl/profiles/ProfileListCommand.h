#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists what the families find in a profile, and what they read.
class ProfileListCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileListCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
