#pragma once

#include "crypto/Decryption.h"
#include "inspection/crypto/LibraryAnswer.h"

#include <QCoreApplication>

/// Words for why a decryption gave what it gave.
class DecryptionNote
{
    Q_DECLARE_TR_FUNCTIONS(DecryptionNote)

public:
    /// For one cipher text and the same keys; both must live as long as this.
    DecryptionNote(const Decryption& decryption, const LibraryAnswer& answer);

    /// True where the keys are wrong or the cipher text is damaged.
    bool isFailure() const;

    /// What happened, in a sentence.
    QString outcome() const;

    /// What the library does besides with such a text; empty when nothing.
    QString remarks() const;

private:
    /// What is wrong with text or padding; empty when nothing.
    QString fault() const;
    QString notWholeBlocks() const;
    QString suspicion() const;

    const Decryption& m_decryption;
    const LibraryAnswer& m_answer;
};
