#pragma once

#include "crypto/CipherKeys.h"
#include "inspection/crypto/EncryptionNote.h"

class Arguments;
class QCommandLineParser;

/// What to encrypt or decrypt with: a pass phrase, or a key and an IV.
namespace KeyOptions {

enum class Use
{
    Encrypt,
    Decrypt
};

void add(QCommandLineParser& parser);
KeySource sourceOf(const Arguments& arguments);
/// Reads the files, or asks for the pass phrase. Throws a Failure where that is not possible.
/// What is to be encrypted is lost with a slip in the pass phrase: it is asked for twice.
CipherKeys of(const Arguments& arguments, Use use);

} // namespace KeyOptions
