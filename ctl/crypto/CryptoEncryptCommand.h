#pragma once

#include "ctl/crypto/CipherCommand.h"

#include <QCoreApplication>

/// Encrypts a file or a stream of any size as host libraries do it.
class CryptoEncryptCommand : public CipherCommand
{
    Q_DECLARE_TR_FUNCTIONS(CryptoEncryptCommand)

public:
    ExitStatus run(const Arguments& arguments, Output& output) override;
};
