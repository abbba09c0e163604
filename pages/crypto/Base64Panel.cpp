#include "pages/crypto/Base64Panel.h"

#include "crypto/Base64Encoder.h"
#include "inspection/crypto/Base64Note.h"
#include "inspection/crypto/DecodedText.h"
#include "inspection/crypto/Sentences.h"
#include "inspection/crypto/TextLimits.h"
#include "pages/crypto/TextPane.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>

Base64Panel::Base64Panel(PageContext& context, QWidget* parent)
    : QWidget(parent),
      m_context(context),
      m_input(new TextPane(tr("&Text or Base64"), tr("Type or paste what is to be converted."))),
      m_output(
          new TextPane(tr("Re&sult"), tr("The result appears here."), TextPane::Access::ReadOnly))
{
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(makeButton(
        tr("E&ncode"), tr("Base64Encoder::Encode: URL-safe, with padding"), &Base64Panel::encode));
    buttons->addWidget(makeButton(tr("D&ecode"),
                                  tr("Base64Encoder::Decode: URL-safe only, up to the first other "
                                     "character"),
                                  &Base64Panel::decode));
    buttons->addWidget(makeButton(tr("Make &URL-safe"),
                                  tr("Base64Encoder::UrlEncode: standard Base64 to URL-safe "
                                     "without padding"),
                                  &Base64Panel::makeUrlSafe));
    buttons->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_input, 1);
    layout->addLayout(buttons);
    layout->addWidget(m_output, 1);
    setFocusProxy(m_input->edit());
}

QPushButton* Base64Panel::makeButton(const QString& caption, const QString& tip,
                                     void (Base64Panel::*slot)())
{
    auto* button = glowing(new QPushButton(caption));
    button->setAccessibleName(withoutMnemonic(caption));
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

std::optional<std::string> Base64Panel::input(std::size_t limit)
{
    std::string text = m_input->text().toStdString();
    const QString problem =
        text.empty() ? tr("Enter a text first.") : TextLimits::problemOf(text, limit);
    if (problem.isEmpty())
        return text;
    m_input->edit()->setFocus();
    m_context.report(PageContext::Report::Warning, problem);
    return {};
}

void Base64Panel::encode()
{
    const auto text = input(TextLimits::encoded);
    if (!text)
        return;
    const auto* bytes = reinterpret_cast<const unsigned char*>(text->data());
    m_output->setText(QString::fromStdString(
        Base64Encoder::Encode(bytes, static_cast<unsigned int>(text->size()))));
    m_context.report(PageContext::Report::Info, tr("Bytes encoded: %L1.").arg(text->size()));
}

void Base64Panel::decode()
{
    const auto text = input(TextLimits::base64);
    if (!text)
        return;
    const std::string bytes = Base64Encoder::Decode(*text);
    if (bytes.empty())
        return m_context.report(PageContext::Report::Warning, Base64Note::nothingDecoded());
    const DecodedText decoded = DecodedText::of(bytes);
    m_output->setText(decoded.text);
    const QString note = Base64Note::of(*text);
    m_context.report(
        note.isEmpty() ? PageContext::Report::Info : PageContext::Report::Warning,
        joinSentences({tr("Bytes decoded: %L1.").arg(bytes.size()), decoded.note(), note}));
}

void Base64Panel::makeUrlSafe()
{
    const auto text = input(TextLimits::base64);
    if (!text)
        return;
    m_output->setText(QString::fromStdString(Base64Encoder::UrlEncode(*text)));
    m_context.report(PageContext::Report::Info, tr("Made URL-safe, without padding."));
}
