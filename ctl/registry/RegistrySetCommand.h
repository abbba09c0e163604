#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Sets a value through the registry service, and says what the service alters.
class RegistrySetCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistrySetCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
