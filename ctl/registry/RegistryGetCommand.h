#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Prints the data of a value as a host library gets it.
class RegistryGetCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryGetCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
