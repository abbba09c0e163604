#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Writes a key with everything below it into a registry file.
class RegistryExportCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryExportCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
