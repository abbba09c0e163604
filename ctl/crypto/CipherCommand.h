#pragma once

#include "ctl/Arguments.h"
#include "ctl/ByteInput.h"
#include "ctl/Command.h"
#include "ctl/crypto/ByteResult.h"
#include "ctl/crypto/KeyOptions.h"

/// What encrypting and decrypting share: the options, and the way of the bytes.
class CipherCommand : public Command
{
public:
    void addOptions(QCommandLineParser& parser) const override
    {
        KeyOptions::add(parser);
        ByteResult::addOption(parser);
    }

protected:
    /// Passes a file or the standard input through the stream. Returns its size in bytes.
    template <typename Stream>
    static std::uint64_t pass(const QString& name, Stream& stream, ByteResult& result)
    {
        std::uint64_t total = 0;
        ByteInput::read(name, [&](const QByteArray& piece) {
            const auto size = static_cast<std::size_t>(piece.size());
            total += size;
            result.put(stream.add(piece.constData(), size));
        });
        return total;
    }
};
