#pragma once

#include "crypto/CipherKeys.h"
#include "inspection/crypto/EncryptionNote.h"

class Arguments;
class QCommandLineParser;

/// What to encrypt or decrypt with: a pass phrase, or a key and an IV.
namespace KeyOptions {

void add(QCommandLineParser& parser);
KeySource sourceOf(const Arguments& arguments);
/// Reads the files, or asks for the pass phrase. Throws a Failure where that is not possible.
CipherKeys of(const Arguments& arguments);

} // namespace KeyOptions
