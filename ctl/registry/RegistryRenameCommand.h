#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Gives a key or a value another name.
class RegistryRenameCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryRenameCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
