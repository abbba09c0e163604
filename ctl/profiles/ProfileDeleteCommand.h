#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Deletes the lines that a family reads as a key or a section.
class ProfileDeleteCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileDeleteCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
