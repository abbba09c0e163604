#pragma once

#include <QWidget>

class DecryptionNote;
class KeyInput;
class PageContext;
class TextPane;

/// Encrypts and decrypts texts as `Encrypt` and `DecryptionAES_Export` do. What it reports holds no
/// secret.
class CipherPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CipherPanel(PageContext& context, QWidget* parent = nullptr);

private:
    QLayout* makeButtons();
    void encrypt();
    void decrypt();
    void refuse(const QString& problem);
    /// Reports a success, as a warning where there are remarks on it.
    void reportDone(const QString& outcome, const QString& remarks);
    /// Reports a failure; shows what the library gets where nothing else stands in the clear text.
    void showFailure(const DecryptionNote& note, const QString& text, const QString& remarks);

    PageContext& m_context;
    KeyInput* m_keys;
    TextPane* m_plain;
    TextPane* m_cipher;
    QString m_failed; ///< what the last failure has put into the clear text
};
