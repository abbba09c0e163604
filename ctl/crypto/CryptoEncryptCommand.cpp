#include "ctl/crypto/CryptoEncryptCommand.h"

#include "crypto/CipherStream.h"
#include "ctl/Output.h"

ExitStatus CryptoEncryptCommand::run(const Arguments& arguments, Output& output)
{
    EncryptionStream stream(KeyOptions::of(arguments, KeyOptions::Use::Encrypt));
    ByteResult result(arguments, output, ByteResult::Certainty::Sure);
    const std::uint64_t size = pass(arguments.at(0), stream, result);
    result.put(stream.finish());
    result.commit();
    const QString note =
        EncryptionNote::of(size, stream.zeroByte(), KeyOptions::sourceOf(arguments));
    if (!note.isEmpty())
        output.note(note);
    return stream.zeroByte() ? ExitStatus::No : ExitStatus::Done;
}
