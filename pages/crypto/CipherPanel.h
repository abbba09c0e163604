#pragma once

#include "inspection/crypto/DecryptionCheck.h"
#include "window/Page.h"

class KeyInput;
class TextPane;

/// Encrypts and decrypts texts as `Encrypt` and `DecryptionAES_Export` do.
class CipherPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CipherPanel(QWidget* parent = nullptr);

signals:
    /// What happened, or why nothing did. Holds no secret.
    void reported(Page::Report kind, const QString& text);

private:
    QWidget* makeButtons();
    void encrypt();
    /// What cannot be read back of a text, and what of the keys is not used; empty when nothing.
    QString encryptionNote(const std::string& plain) const;
    void decrypt();
    void showPlain(const CipherKeys& keys, const std::string& cipherText);
    std::string decrypted(const CipherKeys& keys, const std::string& cipherText, QString* note);
    void reportDecryption(Decryption result, const std::string& cipherText,
                          const std::string& plain, const QString& note);
    QString suspicion() const;
    bool refuseLarge(const std::string& text, std::size_t limit);
    void refuse(const QString& problem);

    KeyInput* m_keys;
    TextPane* m_plain;
    TextPane* m_cipher;
};
