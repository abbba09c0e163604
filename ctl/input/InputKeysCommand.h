#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Lists what the key-state service answers for each key.
class InputKeysCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(InputKeysCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
