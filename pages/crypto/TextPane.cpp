#include "pages/crypto/TextPane.h"

#include "window/CopyButton.h"
#include "window/ShownText.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QVBoxLayout>

QPlainTextEdit* makeTextEdit(const QString& accessibleName, const QString& hint)
{
    auto* edit = new QPlainTextEdit;
    edit->setAccessibleName(accessibleName);
    edit->setPlaceholderText(hint);
    edit->setTabChangesFocus(true);
    // Looking for words in one long line would take seconds.
    edit->setWordWrapMode(QTextOption::WrapAnywhere);
    return edit;
}

TextPane::TextPane(const QString& caption, const QString& hint, Access access, QWidget* parent)
    : QWidget(parent), m_edit(makeTextEdit(withoutMnemonic(caption), hint))
{
    auto* label = new QLabel(caption);
    label->setBuddy(m_edit);
    m_edit->setReadOnly(access == Access::ReadOnly);
    m_edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_edit->setMinimumHeight(m_edit->fontMetrics().lineSpacing() * 4);
    auto* copy = new CopyButton(m_edit->accessibleName(), [this] { return text(); });
    connect(m_edit, &QPlainTextEdit::textChanged, copy, &CopyButton::refreshState);
    auto* head = new QHBoxLayout;
    head->addWidget(label, 1);
    head->addWidget(copy);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(m_edit, 1);
    setTabOrder(m_edit, copy);
}

QString TextPane::text() const
{
    const QString shown = textOf(*m_edit);
    return shown == m_setAsShown ? m_set : shown;
}

void TextPane::setText(const QString& text)
{
    QTextCursor all(m_edit->document()); // setPlainText would forget what can be undone
    all.select(QTextCursor::Document);
    all.insertText(text);
    m_edit->moveCursor(QTextCursor::Start);
    m_set = text;
    m_setAsShown = textOf(*m_edit);
}
