#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Looks for a text in the names of keys and values and in the data of values.
class RegistryFindCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryFindCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
