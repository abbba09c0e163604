#include "inspection/crypto/EncryptionNote.h"

#include "crypto/Decryption.h"
#include "inspection/crypto/Sentences.h"

#include <algorithm>

QString EncryptionNote::of(const std::string& plain, KeySource source)
{
    const std::size_t readable = std::min(plain.find('\0'), plain.size());
    QStringList notes;
    if (readable < plain.size())
        notes += tr("The library encrypts everything from the first zero byte on (byte %L1) as "
                    "zeros: it cannot be read back.")
                     .arg(readable + 1);
    if (source == KeySource::PassPhrase && readable > longestExportedText)
        notes += tr("DecryptionAES_Export cannot give this text back: its result holds at most "
                    "%L1 bytes.")
                     .arg(longestExportedText);
    return joinSentences(notes);
}
