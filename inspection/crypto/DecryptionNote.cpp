#include "inspection/crypto/DecryptionNote.h"

#include "inspection/crypto/Base64Note.h"
#include "inspection/crypto/DecodedText.h"
#include "inspection/crypto/Sentences.h"

DecryptionNote::DecryptionNote(const Decryption& decryption, const LibraryAnswer& answer)
    : m_decryption(decryption), m_answer(answer)
{
}

bool DecryptionNote::isFailure() const
{
    return m_decryption.reason() != DecryptionReason::Decrypted || !fault().isEmpty();
}

QString DecryptionNote::suspicion() const
{
    return m_answer.source == KeySource::PassPhrase
               ? tr("Wrong pass phrase, or damaged cipher text:")
               : tr("Wrong key or IV, or damaged cipher text:");
}

QString DecryptionNote::fault() const
{
    if (m_decryption.reason() == DecryptionReason::WrongPadding)
        return tr("the padding does not match, and the library gets an empty text.");
    if (m_decryption.reason() == DecryptionReason::NoPadding)
        return tr("there is no padding, and the library gets these bytes as they are.");
    return DecodedText::of(m_answer.text).isText ? QString()
                                                 : tr("the clear text is not valid UTF-8.");
}

QString DecryptionNote::notWholeBlocks() const
{
    if (m_decryption.cipherSize == 1)
        return tr("Damaged cipher text: one byte is no whole block of 16. The library gets it "
                  "undecrypted.");
    return tr("Damaged cipher text: %L1 bytes are not whole blocks of 16. The library gets them "
              "undecrypted.")
        .arg(m_decryption.cipherSize);
}

QString DecryptionNote::outcome() const
{
    if (m_decryption.reason() == DecryptionReason::NothingDecoded)
        return Base64Note::nothingDecoded();
    if (m_decryption.reason() == DecryptionReason::NotWholeBlocks)
        return notWholeBlocks();
    if (isFailure())
        return joinSentences({suspicion(), fault()});
    return tr("Bytes decrypted: %L1.").arg(m_answer.text.size());
}

QString DecryptionNote::remarks() const
{
    QStringList remarks;
    if (m_answer.isNull)
        remarks += tr("DecryptionAES_Export gives null: its result holds at most %L1 bytes. This "
                      "is what Encrypt::DecryptionAES gives.")
                       .arg(longestExportedText);
    remarks += DecodedText::of(m_answer.text).note();
    if (m_answer.text.size() < m_decryption.bytes.size())
        remarks += tr("The library ends the text before its first zero byte. Bytes left out: %L1.")
                       .arg(m_decryption.bytes.size() - m_answer.text.size());
    return joinSentences(remarks);
}
