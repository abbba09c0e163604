#include "window/PageFooter.h"

#include "window/GlyphIcon.h"
#include "window/ShownText.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QTime>
#include <QToolButton>
#include <QUndoStack>
#include <QWindow>

namespace {

QPixmap statusPixmap(const QWidget& widget, PageContext::Report kind)
{
    if (kind == PageContext::Report::Info)
        return {};
    const int side = widget.fontMetrics().height();
    const Glyph glyph = kind == PageContext::Report::Warning ? Glyph::Warning : Glyph::Error;
    return glyphIcon(glyph).pixmap(widget.windowHandle(), QSize(side, side));
}

QToolButton* iconButton(Glyph glyph, const QString& name)
{
    auto* button = new QToolButton;
    button->setAutoRaise(true);
    button->setIcon(glyphIcon(glyph));
    button->setAccessibleName(name);
    button->setToolTip(plainToolTip(name));
    button->setFocusPolicy(Qt::TabFocus);
    button->hide();
    return button;
}

// What the button would do is its tool tip; it is there from the first change on.
void follow(QToolButton& button, const QString& action, const QString& change)
{
    button.setEnabled(!change.isEmpty());
    button.setToolTip(
        plainToolTip(change.isEmpty() ? action : PageFooter::tr("%1: %2").arg(action, change)));
}

} // namespace

PageFooter::PageFooter(QUndoStack& changes, QWidget* parent)
    : QWidget(parent),
      m_icon(new QLabel),
      m_status(new QLabel),
      m_read(new QLabel),
      m_reread(iconButton(Glyph::Reread, tr("Read again (F5)")))
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_icon);
    line->addWidget(m_status, 1);
    line->addWidget(m_read);
    line->addWidget(m_reread);
    m_icon->setObjectName(QStringLiteral("statusIcon"));
    m_icon->hide();
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_read->setTextFormat(Qt::PlainText);
    m_read->setForegroundRole(QPalette::PlaceholderText);
    m_read->hide();
    connect(m_reread, &QToolButton::clicked, this, &PageFooter::rereadRequested);
    addUndo(changes);
}

void PageFooter::addUndo(QUndoStack& changes)
{
    const QString undoName = tr("Undo (Ctrl+Z)");
    const QString redoName = tr("Redo (Ctrl+Shift+Z)");
    auto* undo = iconButton(Glyph::Undo, undoName);
    auto* redo = iconButton(Glyph::Redo, redoName);
    layout()->addWidget(undo);
    layout()->addWidget(redo);
    connect(undo, &QToolButton::clicked, &changes, &QUndoStack::undo);
    connect(redo, &QToolButton::clicked, &changes, &QUndoStack::redo);
    connect(&changes, &QUndoStack::indexChanged, this, [=, &changes] {
        follow(*undo, undoName, changes.undoText());
        follow(*redo, redoName, changes.redoText());
        undo->show();
        redo->show();
    });
}

void PageFooter::show(PageContext::Report kind, const QString& text)
{
    m_kind = kind;
    paintIcon();
    m_icon->setVisible(kind != PageContext::Report::Info);
    m_text = text;
    m_status->setText(withoutLongWords(text));
    m_status->setToolTip(m_status->text() == text ? QString() : plainToolTip(text));
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(m_status, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void PageFooter::markRead()
{
    const QString time = QLocale().toString(QTime::currentTime(), QStringLiteral("HH:mm:ss"));
    m_read->setText(tr("Read at %1").arg(time));
    m_read->show();
    m_reread->show();
}

void PageFooter::paintIcon()
{
    m_icon->setPixmap(statusPixmap(*this, m_kind));
}

void PageFooter::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintIcon();
}
