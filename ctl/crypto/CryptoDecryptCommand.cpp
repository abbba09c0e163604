#include "ctl/crypto/CryptoDecryptCommand.h"

#include "crypto/CipherStream.h"
#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "inspection/crypto/DecryptionNote.h"

// Bytes that are no text are none the worse for that: whoever asks for a file gets it.
ExitStatus CryptoDecryptCommand::run(const Arguments& arguments, Output& output)
{
    DecryptionStream stream(KeyOptions::of(arguments, KeyOptions::Use::Decrypt));
    ByteResult result(arguments, output, ByteResult::Certainty::Undecided);
    pass(arguments.at(0), stream, result);
    const Decryption end = stream.finish();
    if (end.reason() != DecryptionReason::Decrypted)
        throw Failure(DecryptionNote(end, LibraryAnswer{KeyOptions::sourceOf(arguments), {}, false})
                          .outcome());
    result.put(end.bytes);
    result.commit();
    if (stream.leftOut() == 0)
        return ExitStatus::Done;
    output.note(tr("The library ends the text before its first zero byte. Bytes left out: %L1.")
                    .arg(stream.leftOut()));
    return ExitStatus::No;
}
