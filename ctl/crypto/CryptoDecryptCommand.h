#pragma once

#include "ctl/crypto/CipherCommand.h"

#include <QCoreApplication>

/// Decrypts a file or a stream of any size, or tells why that fails.
class CryptoDecryptCommand : public CipherCommand
{
    Q_DECLARE_TR_FUNCTIONS(CryptoDecryptCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
