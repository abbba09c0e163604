#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Deletes a value or a key through the registry service, and names what goes.
class RegistryDeleteCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryDeleteCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
