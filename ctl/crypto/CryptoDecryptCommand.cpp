#include "ctl/crypto/CryptoDecryptCommand.h"

#include "crypto/CipherStream.h"
#include "ctl/Failure.h"
#include "ctl/Output.h"
#include "ctl/crypto/ByteInput.h"
#include "ctl/crypto/ByteResult.h"
#include "ctl/crypto/KeyOptions.h"
#include "inspection/crypto/DecryptionNote.h"

void CryptoDecryptCommand::addOptions(QCommandLineParser& parser) const
{
    KeyOptions::add(parser);
    ByteResult::addOption(parser);
}

// Bytes that are no text are none the worse for that: whoever asks for a file gets it.
ExitStatus CryptoDecryptCommand::run(const Arguments& arguments, Output& output)
{
    DecryptionStream stream(KeyOptions::of(arguments));
    ByteResult result(arguments, output, ByteResult::Certainty::Undecided);
    ByteInput::read(arguments.at(0), [&](const QByteArray& piece) {
        result.put(stream.add(piece.constData(), static_cast<std::size_t>(piece.size())));
    });
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
