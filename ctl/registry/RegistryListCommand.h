#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists what is in a key, or everything below it.
class RegistryListCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryListCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
