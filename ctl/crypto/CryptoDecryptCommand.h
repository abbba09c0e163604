#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Decrypts a file or a stream of any size, or tells why that fails.
class CryptoDecryptCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(CryptoDecryptCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
