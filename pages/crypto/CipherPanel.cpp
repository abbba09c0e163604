#include "pages/crypto/CipherPanel.h"

#include "crypto/Base64Encoder.h"
#include "crypto/Encrypt.h"
#include "inspection/crypto/Base64Note.h"
#include "inspection/crypto/DecodedText.h"
#include "inspection/crypto/TextLimits.h"
#include "pages/crypto/KeyInput.h"
#include "pages/crypto/TextPane.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>
#include <memory>

namespace {

constexpr std::size_t exportedArray = 2048; // with its terminator

bool isUtf8(const std::string& text)
{
    return QString::fromStdString(text).toStdString() == text;
}

QString joined(const QString& text, const QString& note)
{
    const bool both = !text.isEmpty() && !note.isEmpty();
    return text + (both ? QStringLiteral(" ") : QString()) + note;
}

} // namespace

CipherPanel::CipherPanel(QWidget* parent)
    : QWidget(parent),
      m_keys(new KeyInput),
      m_plain(new TextPane(tr("Clear te&xt"), tr("Type or paste a text to encrypt."))),
      m_cipher(new TextPane(tr("Base64 of the cip&her text"),
                            tr("Paste what a host library has encrypted.")))
{
    auto* texts = new QHBoxLayout;
    texts->addWidget(m_plain, 1);
    texts->addWidget(makeButtons());
    texts->addWidget(m_cipher, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_keys);
    layout->addLayout(texts, 1);
    setFocusProxy(m_keys);
}

QWidget* CipherPanel::makeButtons()
{
    auto* place = new QWidget;
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    auto* encryptButton = glowing(new QPushButton(tr("E&ncrypt") + QStringLiteral(" \u2192")));
    connect(encryptButton, &QPushButton::clicked, this, &CipherPanel::encrypt);
    layout->addWidget(encryptButton);
    auto* decryptButton = glowing(new QPushButton(QStringLiteral("\u2190 ") + tr("Decryp&t")));
    connect(decryptButton, &QPushButton::clicked, this, &CipherPanel::decrypt);
    layout->addWidget(decryptButton);
    layout->addStretch();
    encryptButton->setAccessibleName(tr("Encrypt"));
    decryptButton->setAccessibleName(tr("Decrypt"));
    return place;
}

void CipherPanel::refuse(const QString& problem)
{
    emit reported(Page::Report::Warning, problem);
}

bool CipherPanel::refuseLarge(const std::string& text, std::size_t limit)
{
    if (text.size() <= limit)
        return false;
    refuse(
        tr("The text is too long: %L1 bytes. At most %L2 are taken.").arg(text.size()).arg(limit));
    return true;
}

void CipherPanel::encrypt()
{
    QString problem;
    const std::optional<CipherKeys> keys = m_keys->keys(&problem);
    if (!keys)
        return refuse(problem);
    const std::string plain = m_plain->text().toStdString();
    if (refuseLarge(plain, largestEncrypted))
        return;
    m_cipher->setText(QString::fromStdString(Encrypt::EncryptionAES(keys->key, keys->iv, plain)));
    const QString note = encryptionNote(plain);
    emit reported(note.isEmpty() ? Page::Report::Info : Page::Report::Warning,
                  joined(tr("Bytes encrypted: %L1.").arg(plain.size()), note));
}

QString CipherPanel::encryptionNote(const std::string& plain) const
{
    const std::size_t readable = std::min(plain.find('\0'), plain.size());
    QString note;
    if (readable < plain.size())
        note = tr("The library encrypts everything from the first zero byte on (byte %L1) as "
                  "zeros: it cannot be read back.")
                   .arg(readable + 1);
    if (m_keys->usesPassPhrase() && readable >= exportedArray)
        note = joined(note, tr("DecryptionAES_Export cannot give this text back: its result holds "
                               "at most %L1 bytes.")
                                .arg(exportedArray - 1));
    return joined(note, m_keys->note());
}

void CipherPanel::decrypt()
{
    QString problem;
    const std::optional<CipherKeys> keys = m_keys->keys(&problem);
    if (!keys)
        return refuse(problem);
    const std::string cipherText = m_cipher->text().toStdString();
    if (refuseLarge(cipherText, largestBase64))
        return;
    if (cipherText.empty()) {
        m_cipher->edit()->setFocus();
        return refuse(tr("Enter the cipher text first."));
    }
    showPlain(*keys, cipherText);
}

void CipherPanel::showPlain(const CipherKeys& keys, const std::string& cipherText)
{
    const CheckedDecryption checked = checkDecryption(keys, cipherText);
    if (checked.result == Decryption::Nothing)
        return refuse(tr("This is no URL-safe Base64: the library decodes nothing of it."));
    QString note;
    const std::string plain = decrypted(keys, cipherText, &note);
    const DecodedText decoded = decodedText(plain);
    m_plain->setText(decoded.text);
    if (!decoded.isText)
        note = joined(note, tr("They are no text; shown in hexadecimal."));
    if (plain.size() < checked.size)
        note = joined(note, tr("The library ends the text before its first zero byte. Bytes left "
                               "out: %L1.")
                                .arg(checked.size - plain.size()));
    note = joined(joined(note, Base64Note::of(cipherText)), m_keys->note());
    reportDecryption(checked.result, cipherText, plain, note);
}

std::string CipherPanel::decrypted(const CipherKeys& keys, const std::string& cipherText,
                                   QString* note)
{
    if (!m_keys->usesPassPhrase())
        return Encrypt::DecryptionAES(keys.key, keys.iv, cipherText);
    const std::unique_ptr<char[]> plain(
        DecryptionAES_Export(m_keys->passPhrase().c_str(), cipherText.c_str()));
    if (plain)
        return plain.get();
    *note = tr("DecryptionAES_Export gives null: its result holds at most %L1 bytes. This is what "
               "Encrypt::DecryptionAES gives.")
                .arg(exportedArray - 1);
    return Encrypt::DecryptionAES(keys.key, keys.iv, cipherText);
}

QString CipherPanel::suspicion() const
{
    return m_keys->usesPassPhrase() ? tr("Wrong pass phrase, or damaged cipher text:")
                                    : tr("Wrong key or IV, or damaged cipher text:");
}

void CipherPanel::reportDecryption(Decryption result, const std::string& cipherText,
                                   const std::string& plain, const QString& note)
{
    const auto fail = [this, &note](const QString& text) {
        emit reported(Page::Report::Error, joined(suspicion() + QLatin1Char(' ') + text, note));
    };
    if (result == Decryption::WrongPadding)
        fail(tr("the padding does not match, and the library gets an empty text."));
    else if (result == Decryption::NoPadding)
        fail(tr("there is no padding, and the library gets these bytes as they are."));
    else if (result == Decryption::NotWholeBlocks)
        emit reported(Page::Report::Error,
                      joined(tr("Damaged cipher text: %L1 bytes are not whole blocks of 16. The "
                                "library gets them undecrypted.")
                                 .arg(Base64Encoder::Decode(cipherText).size()),
                             note));
    else if (!isUtf8(plain))
        fail(tr("the clear text is not valid UTF-8."));
    else
        emit reported(note.isEmpty() ? Page::Report::Info : Page::Report::Warning,
                      joined(tr("Bytes decrypted: %L1.").arg(plain.size()), note));
}
