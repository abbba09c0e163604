#include "pages/registry/DataField.h"

#include "window/ShownText.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <climits>

namespace {

bool isLineEnd(QChar character)
{
    return character == QLatin1Char('\n') || character == QLatin1Char('\r') ||
           character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
}

bool containsLineEnd(const QString& text)
{
    return std::any_of(text.begin(), text.end(), isLineEnd);
}

} // namespace

DataField::DataField(QWidget* parent)
    : QWidget(parent), m_line(new QLineEdit), m_large(new QPlainTextEdit)
{
    m_line->setMaxLength(INT_MAX);
    setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    m_large->setTabChangesFocus(true);
    m_large->setMinimumHeight(fontMetrics().lineSpacing() * 5);
    m_large->setToolTip(tr("Enter begins a new line; Ctrl+Enter confirms."));
    m_large->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(m_large, 1);
    setFocusProxy(m_line);
    for (QWidget* field : {static_cast<QWidget*>(m_line), static_cast<QWidget*>(m_large)})
        field->setAccessibleName(tr("Data"));
    connect(m_line, &QLineEdit::textChanged, this, &DataField::notice);
    connect(m_large, &QPlainTextEdit::textChanged, this, &DataField::notice);
    for (const char* enter : {"Ctrl+Return", "Ctrl+Enter"}) {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(enter)), m_large);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, &DataField::submitted);
    }
}

void DataField::setText(const QString& text)
{
    const QScopedValueRollback setting(m_isSetting, true);
    if (containsLineEnd(text))
        showField(true);
    fill(text);
    m_original = contents();
    m_isTouched = false;
}

void DataField::fill(const QString& text)
{
    if (isLarge())
        m_large->setPlainText(text);
    else
        m_line->setText(text);
}

QString DataField::text() const
{
    return isLarge() ? textOf(*m_large) : m_line->text();
}

// The line ends that the large field knows differ here, and in `text` they do not.
QString DataField::contents() const
{
    return isLarge() ? m_large->document()->toRawText() : m_line->text();
}

bool DataField::isOriginal() const
{
    return contents() == m_original;
}

bool DataField::isLarge() const
{
    return !m_large->isHidden();
}

bool DataField::hasLineEnds() const
{
    return containsLineEnd(text());
}

void DataField::setLarge(bool large)
{
    if (large == isLarge() || (!large && hasLineEnds()))
        return;
    const QScopedValueRollback setting(m_isSetting, true);
    const QString text = this->text();
    showField(large);
    fill(text);
    m_large->moveCursor(QTextCursor::End);
}

void DataField::showField(bool large)
{
    const bool hadFocus = focusProxy()->hasFocus();
    m_large->setVisible(large);
    m_line->setVisible(!large);
    setFocusProxy(large ? static_cast<QWidget*>(m_large) : m_line);
    if (hadFocus)
        focusProxy()->setFocus();
}

void DataField::selectAll()
{
    m_line->selectAll();
    m_large->selectAll();
}

// A text with line ends may be pasted into the line, which would not show them.
void DataField::notice()
{
    if (m_isSetting)
        return;
    m_isTouched = true;
    if (!isLarge() && containsLineEnd(m_line->text()))
        setLarge(true);
    emit changed();
}
