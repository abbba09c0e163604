#include "ctl/crypto/CryptoEncryptCommand.h"

#include "crypto/CipherStream.h"
#include "ctl/Output.h"
#include "ctl/crypto/ByteInput.h"
#include "ctl/crypto/ByteResult.h"
#include "ctl/crypto/KeyOptions.h"

void CryptoEncryptCommand::addOptions(QCommandLineParser& parser) const
{
    KeyOptions::add(parser);
    ByteResult::addOption(parser);
}

ExitStatus CryptoEncryptCommand::run(const Arguments& arguments, Output& output)
{
    EncryptionStream stream(KeyOptions::of(arguments));
    ByteResult result(arguments, output, ByteResult::Certainty::Sure);
    std::uint64_t size = 0;
    ByteInput::read(arguments.at(0), [&](const QByteArray& piece) {
        size += static_cast<std::uint64_t>(piece.size());
        result.put(stream.add(piece.constData(), static_cast<std::size_t>(piece.size())));
    });
    result.put(stream.finish());
    result.commit();
    const QString note =
        EncryptionNote::of(size, stream.zeroByte(), KeyOptions::sourceOf(arguments));
    if (!note.isEmpty())
        output.note(note);
    return stream.zeroByte() ? ExitStatus::No : ExitStatus::Done;
}
