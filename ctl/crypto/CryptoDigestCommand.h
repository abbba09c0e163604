#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Prints what the crypto classes give for a file or a stream.
class CryptoDigestCommand : public Command
{
    Q_DECLARE_TR_FUNCTIONS(CryptoDigestCommand)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
