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

constexpr double warningShare = 0.2; // of the highlight in the ground of the text; a text that can
constexpr double errorShare = 0.4;   // be read on both can be read on what lies between them

QColor mixed(const QColor& ground, const QColor& highlight, double share)
{
    const auto mix = [share](double a, double b) { return a * (1 - share) + b * share; };
    return QColor::fromRgbF(mix(ground.redF(), highlight.redF()),
                            mix(ground.greenF(), highlight.greenF()),
                            mix(ground.blueF(), highlight.blueF()));
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
    paintReport();
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

// What was refused stands on a ground of its own, besides its sign.
void PageFooter::paintReport()
{
    m_icon->setPixmap(statusPixmap(*this, m_kind));
    QPalette colors;
    if (m_kind != PageContext::Report::Info)
        colors.setColor(QPalette::Window,
                        mixed(palette().color(QPalette::Window),
                              palette().color(QPalette::Highlight),
                              m_kind == PageContext::Report::Error ? errorShare : warningShare));
    m_status->setPalette(colors);
    m_status->setAutoFillBackground(m_kind != PageContext::Report::Info);
}

void PageFooter::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintReport();
}
