#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Carries out the statements of a registry file, or tells what will become of them.
class RegistryImportCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryImportCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
