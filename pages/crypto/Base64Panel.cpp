#include "pages/crypto/Base64Panel.h"

#include "crypto/Base64Encoder.h"
#include "inspection/crypto/Base64Note.h"
#include "inspection/crypto/DecodedText.h"
#include "inspection/crypto/TextLimits.h"
#include "pages/crypto/TextPane.h"
#include "window/ShownText.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

Base64Panel::Base64Panel(QWidget* parent)
    : QWidget(parent),
      m_input(new TextPane(tr("&Text or Base64"), tr("Type or paste what is to be converted."))),
      m_output(
          new TextPane(tr("Re&sult"), tr("The result appears here."), TextPane::Access::ReadOnly))
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_input, 1);
    layout->addWidget(makeButtons());
    layout->addWidget(m_output, 1);
    setFocusProxy(m_input->edit());
}

QWidget* Base64Panel::makeButtons()
{
    auto* place = new QWidget;
    auto* layout = new QHBoxLayout(place);
    m_buttons = layout;
    layout->setContentsMargins(0, 0, 0, 0);
    addButton(tr("E&ncode"), tr("Base64Encoder::Encode: URL-safe, with padding"),
              &Base64Panel::encode);
    addButton(tr("D&ecode"),
              tr("Base64Encoder::Decode: URL-safe only, up to the first other "
                 "character"),
              &Base64Panel::decode);
    addButton(tr("Make &URL-safe"),
              tr("Base64Encoder::UrlEncode: standard Base64 to URL-safe "
                 "without padding"),
              &Base64Panel::makeUrlSafe);
    layout->addStretch();
    return place;
}

void Base64Panel::addButton(const QString& caption, const QString& tip, void (Base64Panel::*slot)())
{
    auto* button = glowing(new QPushButton(caption));
    button->setAccessibleName(withoutMnemonic(caption));
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, slot);
    m_buttons->addWidget(button);
}

bool Base64Panel::take(std::string* text, std::size_t limit)
{
    *text = m_input->text().toStdString();
    if (!text->empty() && text->size() <= limit)
        return true;
    m_input->edit()->setFocus();
    emit reported(Page::Report::Warning,
                  text->empty() ? tr("Enter a text first.")
                                : tr("The text is too long: %L1 bytes. At most %L2 are taken.")
                                      .arg(text->size())
                                      .arg(limit));
    return false;
}

void Base64Panel::encode()
{
    std::string text;
    if (!take(&text, largestEncoded))
        return;
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    m_output->setText(QString::fromStdString(
        Base64Encoder::Encode(bytes, static_cast<unsigned int>(text.size()))));
    emit reported(Page::Report::Info, tr("Bytes encoded: %L1.").arg(text.size()));
}

void Base64Panel::decode()
{
    std::string text;
    if (!take(&text, largestBase64))
        return;
    const std::string bytes = Base64Encoder::Decode(text);
    if (bytes.empty()) {
        emit reported(Page::Report::Warning,
                      tr("This is no URL-safe Base64: the library decodes nothing of it."));
        return;
    }
    showDecoded(bytes, Base64Note::of(text));
}

void Base64Panel::showDecoded(const std::string& bytes, const QString& note)
{
    const DecodedText decoded = decodedText(bytes);
    m_output->setText(decoded.text);
    const QString count = tr("Bytes decoded: %L1.").arg(bytes.size());
    const QString done =
        decoded.isText ? count
                       : count + QLatin1Char(' ') + tr("They are no text; shown in hexadecimal.");
    emit reported(note.isEmpty() ? Page::Report::Info : Page::Report::Warning,
                  note.isEmpty() ? done : done + QLatin1Char(' ') + note);
}

void Base64Panel::makeUrlSafe()
{
    std::string text;
    if (!take(&text, largestBase64))
        return;
    m_output->setText(QString::fromStdString(Base64Encoder::UrlEncode(text)));
    emit reported(Page::Report::Info, tr("Made URL-safe, without padding."));
}
