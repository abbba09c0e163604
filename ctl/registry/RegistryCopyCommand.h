#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Copies a key with everything below it, as it is stored.
class RegistryCopyCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(RegistryCopyCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
