#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Writes all entries of another profile, which is the standard input.
class ProfileMergeCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(ProfileMergeCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
