#include "pages/trace/CallPane.h"

#include "window/CopyButton.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>

namespace {

constexpr int longestShown = 20000; // characters: more take long to be laid out
constexpr int fewestLines = 4;

QString shown(const QString& text)
{
    return text.size() <= longestShown
               ? text
               : text.left(longestShown) + QChar(0x2026) + QLatin1Char('\n') +
                     CallPane::tr("Here ends what is shown. The button Copy copies all %L1 "
                                  "characters.")
                         .arg(text.size());
}

} // namespace

CallPane::CallPane(QWidget* parent)
    : QWidget(parent),
      m_edit(new QPlainTextEdit),
      m_copy(new CopyButton(tr("the call"), [this] { return m_text; })),
      m_buttons(new QVBoxLayout)
{
    m_edit->setObjectName(QStringLiteral("details"));
    m_edit->setAccessibleName(tr("The chosen call"));
    m_edit->setPlaceholderText(tr("Choose a call: all that was recorded of it stands here."));
    m_edit->setReadOnly(true);
    m_edit->setTabChangesFocus(true);
    m_edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_edit->setWordWrapMode(QTextOption::WrapAnywhere);
    m_edit->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_edit->setMinimumHeight(m_edit->fontMetrics().lineSpacing() * fewestLines);
    m_buttons->addWidget(m_copy);
    m_buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit, 1);
    layout->addLayout(m_buttons);
}

// What is read again and has not changed keeps its selection.
void CallPane::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_edit->setPlainText(shown(text));
    m_copy->refreshState();
}

void CallPane::addButton(QWidget* button)
{
    m_buttons->insertWidget(0, button);
}
