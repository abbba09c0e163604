#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Encrypts a file or a stream of any size as host libraries do it.
class CryptoEncryptCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(CryptoEncryptCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
