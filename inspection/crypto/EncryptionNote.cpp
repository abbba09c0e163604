#include "inspection/crypto/EncryptionNote.h"

#include "crypto/Decryption.h"
#include "inspection/crypto/Sentences.h"

#include <algorithm>

QString EncryptionNote::of(const std::string& plain, KeySource source)
{
    const std::size_t zeroByte = plain.find('\0');
    return of(plain.size(),
              zeroByte == std::string::npos ? std::nullopt
                                            : std::make_optional<std::uint64_t>(zeroByte),
              source);
}

QString EncryptionNote::of(std::uint64_t size, std::optional<std::uint64_t> zeroByte,
                           KeySource source)
{
    const std::uint64_t readable = zeroByte.value_or(size);
    QStringList notes;
    if (zeroByte)
        notes += tr("The library encrypts everything from the first zero byte on (byte %L1) as "
                    "zeros: it cannot be read back.")
                     .arg(readable + 1);
    if (source == KeySource::PassPhrase && readable > longestExportedText)
        notes += tr("DecryptionAES_Export cannot give this text back: its result holds at most "
                    "%L1 bytes.")
                     .arg(longestExportedText);
    return joinSentences(notes);
}
