#include "window/Page.h"

#include "app/ApplicationLog.h"
#include "widgets/ButtonMonitor.h"
#include "window/BusyOverlay.h"
#include "window/GlyphIcon.h"
#include "window/ShownText.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace {

Logger::log_level level(Page::Report kind)
{
    switch (kind) {
    case Page::Report::Info: return Logger::info;
    case Page::Report::Warning: return Logger::warning;
    case Page::Report::Error: return Logger::error;
    }
    return Logger::error;
}

QPixmap statusPixmap(const QWidget& widget, Page::Report kind)
{
    if (kind == Page::Report::Info)
        return {};
    const int side = widget.fontMetrics().height();
    const Glyph glyph = kind == Page::Report::Warning ? Glyph::Warning : Glyph::Error;
    return glyphIcon(glyph).pixmap(widget.windowHandle(), QSize(side, side));
}

} // namespace

Page::Page(QWidget* parent)
    : QWidget(parent),
      m_content(new QWidget(this)),
      m_body(new QVBoxLayout),
      m_statusIcon(new QLabel),
      m_status(new QLabel),
      m_overlay(new BusyOverlay(m_content))
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_content);
    auto* content = new QVBoxLayout(m_content);
    content->addLayout(m_body, 1);
    auto* line = new QHBoxLayout;
    line->addWidget(m_statusIcon);
    line->addWidget(m_status, 1);
    content->addLayout(line);
    m_statusIcon->setObjectName(QStringLiteral("statusIcon"));
    m_statusIcon->hide();
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_overlay, &BusyOverlay::cancelRequested, this, &Page::cancelJob);
    connect(&m_runner, &JobRunner::progressed, this, &Page::showProgress);
    connect(&m_runner, &JobRunner::finished, this, [this] { endJob(true); });
}

void Page::refresh() {}

void Page::find() {}

void Page::entered() {}

void Page::takeFocus()
{
    if (isBusy())
        m_overlay->setFocus();
    else
        setFocus();
}

QString Page::statusText() const
{
    return m_statusText;
}

void Page::run(const QString& title, std::unique_ptr<Job> job,
               std::function<void(bool complete)> finished)
{
    if (isBusy())
        return;
    m_job = std::move(job);
    m_finished = std::move(finished);
    if (m_runner.start(*m_job)) {
        endJob(true);
        return;
    }
    QWidget* focus = window()->focusWidget();
    m_focusBefore = isAncestorOf(focus) ? focus : nullptr;
    m_content->setEnabled(false);
    m_overlay->cover(title);
    showProgress();
}

void Page::cancelJob()
{
    if (!isBusy())
        return;
    endJob(m_runner.cancel());
}

// The callback may start the next job, so this one is out of the way before it is called.
void Page::endJob(bool complete)
{
    const std::unique_ptr<Job> job = std::move(m_job);
    const auto finished = std::exchange(m_finished, {});
    const bool hadFocus = m_overlay->isAncestorOf(window()->focusWidget());
    m_content->setEnabled(true);
    m_overlay->uncover();
    if (hadFocus && m_focusBefore)
        m_focusBefore->setFocus();
    if (finished)
        finished(complete);
}

void Page::showProgress()
{
    const QString progress = m_job->progress();
    if (!progress.isEmpty())
        m_overlay->setProgress(progress);
}

void Page::report(Report kind, const QString& text)
{
    showStatus(kind, text);
    ApplicationLog::instance().write(level(kind), text);
}

void Page::setStatus(const QString& text)
{
    showStatus(Report::Info, text);
}

void Page::showStatus(Report kind, const QString& text)
{
    m_kind = kind;
    paintStatusIcon();
    m_statusIcon->setVisible(kind != Report::Info);
    m_statusText = text;
    m_status->setText(withoutLongWords(text));
    m_status->setToolTip(m_status->text() == text ? QString() : plainToolTip(text));
    if (text.isEmpty())
        return;
    QAccessibleEvent alert(m_status, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Page::paintStatusIcon()
{
    m_statusIcon->setPixmap(statusPixmap(*this, m_kind));
}

void Page::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintStatusIcon();
}

QPushButton* glowing(QPushButton* button)
{
    button->installEventFilter(&g_buttonMonitor);
    button->setIcon(QIcon()); // some styles give one to the common buttons of dialogs alone
    return button;
}
