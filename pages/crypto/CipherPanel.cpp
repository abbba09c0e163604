#include "pages/crypto/CipherPanel.h"

#include "crypto/Encrypt.h"
#include "inspection/crypto/Base64Note.h"
#include "inspection/crypto/DecodedText.h"
#include "inspection/crypto/DecryptionNote.h"
#include "inspection/crypto/LibraryAnswer.h"
#include "inspection/crypto/Sentences.h"
#include "inspection/crypto/TextLimits.h"
#include "pages/crypto/KeyInput.h"
#include "pages/crypto/TextPane.h"
#include "window/Page.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

CipherPanel::CipherPanel(PageContext& context, QWidget* parent)
    : QWidget(parent),
      m_context(context),
      m_keys(new KeyInput(context)),
      m_plain(new TextPane(tr("Clear te&xt"), tr("Type or paste a text to encrypt."))),
      m_cipher(new TextPane(tr("Base64 of the cip&her text"),
                            tr("Paste what a host library has encrypted.")))
{
    auto* texts = new QHBoxLayout;
    texts->addWidget(m_plain, 1);
    texts->addLayout(makeButtons());
    texts->addWidget(m_cipher, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_keys);
    layout->addLayout(texts, 1);
    setFocusProxy(m_keys);
}

QLayout* CipherPanel::makeButtons()
{
    auto* encryptButton = glowing(new QPushButton(tr("E&ncrypt") + QStringLiteral(" \u2192")));
    encryptButton->setAccessibleName(tr("Encrypt"));
    connect(encryptButton, &QPushButton::clicked, this, &CipherPanel::encrypt);
    auto* decryptButton = glowing(new QPushButton(QStringLiteral("\u2190 ") + tr("Decryp&t")));
    decryptButton->setAccessibleName(tr("Decrypt"));
    connect(decryptButton, &QPushButton::clicked, this, &CipherPanel::decrypt);
    auto* layout = new QVBoxLayout;
    layout->addStretch();
    layout->addWidget(encryptButton);
    layout->addWidget(decryptButton);
    layout->addStretch();
    return layout;
}

void CipherPanel::refuse(const QString& problem)
{
    m_context.report(PageContext::Report::Warning, problem);
}

void CipherPanel::reportDone(const QString& outcome, const QString& remarks)
{
    m_context.report(remarks.isEmpty() ? PageContext::Report::Info : PageContext::Report::Warning,
                     joinSentences({outcome, remarks}));
}

void CipherPanel::encrypt()
{
    const std::optional<CipherKeys> keys = m_keys->keys();
    if (!keys)
        return;
    const std::string plain = m_plain->text().toStdString();
    const QString problem = TextLimits::problemOf(plain, TextLimits::encrypted);
    if (!problem.isEmpty())
        return refuse(problem);
    m_cipher->setText(QString::fromStdString(Encrypt::EncryptionAES(keys->key, keys->iv, plain)));
    reportDone(tr("Bytes encrypted: %L1.").arg(plain.size()),
               joinSentences({EncryptionNote::of(plain, m_keys->source()), m_keys->note()}));
}

void CipherPanel::decrypt()
{
    const std::optional<CipherKeys> keys = m_keys->keys();
    if (!keys)
        return;
    const std::string cipherText = m_cipher->text().toStdString();
    const QString problem = TextLimits::problemOf(cipherText, TextLimits::base64);
    if (!problem.isEmpty())
        return refuse(problem);
    if (cipherText.empty()) {
        m_cipher->edit()->setFocus();
        return refuse(tr("Enter the cipher text first."));
    }
    const Decryption decryption = decryptWithReason(*keys, cipherText);
    const LibraryAnswer answer =
        m_keys->source() == KeySource::PassPhrase
            ? LibraryAnswer::underPassPhrase(m_keys->passPhrase(), cipherText)
            : LibraryAnswer::withKeys(*keys, cipherText);
    const DecryptionNote note(decryption, answer);
    if (decryption.reason() == DecryptionReason::NothingDecoded)
        return refuse(note.outcome());
    const QString text = DecodedText::of(answer.text).text;
    const QString remarks = joinSentences({Base64Note::of(cipherText), m_keys->note()});
    if (note.isFailure())
        return showFailure(note, text, remarks);
    m_plain->setText(text);
    reportDone(note.outcome(), joinSentences({note.remarks(), remarks}));
}

// What a failure gives takes the place of nothing but what a failure gave before.
void CipherPanel::showFailure(const DecryptionNote& note, const QString& text,
                              const QString& remarks)
{
    const QString before = m_plain->text();
    QString remark = note.remarks();
    if (before.isEmpty() || before == m_failed) {
        m_plain->setText(text);
        m_failed = text;
    } else {
        remark = text.isEmpty() ? QString() : tr("They are not shown: the clear text is kept.");
    }
    m_context.report(PageContext::Report::Error, joinSentences({note.outcome(), remark, remarks}));
}
