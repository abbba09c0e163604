#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Writes a value through one of the families.
class ProfileSetCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileSetCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
