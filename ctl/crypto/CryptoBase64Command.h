#pragma once

#include "ctl/Command.h"

#include <QCoreApplication>

/// Encodes or decodes URL-safe Base64.
class CryptoBase64Command : public Command
{
    Q_DECLARE_TR_FUNCTIONS(CryptoBase64Command)

public:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
