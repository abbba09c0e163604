#include "pages/crypto/TextPane.h"

#include "pages/crypto/CopyButton.h"
#include "window/ShownText.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

TextPane::TextPane(const QString& caption, const QString& hint, Access access, QWidget* parent)
    : QWidget(parent), m_edit(new QPlainTextEdit)
{
    auto* label = new QLabel(caption);
    label->setBuddy(m_edit);
    const QString plain = withoutMnemonic(caption);
    m_edit->setAccessibleName(plain);
    m_edit->setPlaceholderText(hint);
    m_edit->setReadOnly(access == Access::ReadOnly);
    m_edit->setTabChangesFocus(true);
    // Looking for words in one long line would take seconds.
    m_edit->setWordWrapMode(QTextOption::WrapAnywhere);
    m_edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_edit->setMinimumHeight(m_edit->fontMetrics().lineSpacing() * 4);
    m_copy = new CopyButton(plain, [this] { return text(); });
    connect(m_edit, &QPlainTextEdit::textChanged, m_copy, [this] { m_copy->refreshState(); });
    auto* head = new QHBoxLayout;
    head->addWidget(label, 1);
    head->addWidget(m_copy);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(m_edit, 1);
    setTabOrder(m_edit, m_copy);
}

QString TextPane::text() const
{
    const QString shown = textOf(*m_edit);
    return shown == m_setAsShown ? m_set : shown;
}

void TextPane::setText(const QString& text)
{
    m_edit->setPlainText(text);
    m_set = text;
    m_setAsShown = textOf(*m_edit);
}
