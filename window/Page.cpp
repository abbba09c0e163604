#include "window/Page.h"

#include "app/ApplicationLog.h"
#include "widgets/ButtonMonitor.h"
#include "window/BusyOverlay.h"
#include "window/PageFooter.h"
#include "window/ScrolledBody.h"

#include <QApplication>
#include <QPushButton>
#include <QTimerEvent>
#include <QVBoxLayout>

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

// Half of what "within a second" allows.
constexpr int changeMilliseconds = 500;

} // namespace

Page::Page(QWidget* parent)
    : QWidget(parent),
      m_content(new QWidget(this)),
      m_body(new QVBoxLayout),
      m_footer(new PageFooter(m_changes)),
      m_overlay(new BusyOverlay(m_content))
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_content);
    auto* content = new QVBoxLayout(m_content);
    content->addWidget(new ScrolledBody(m_body), 1);
    content->addWidget(m_footer);
    connect(m_footer, &PageFooter::rereadRequested, this, [this] { refresh(); });
    connect(m_overlay, &BusyOverlay::cancelRequested, this, &Page::cancelJob);
    connect(&m_runner, &JobRunner::progressed, this, &Page::showProgress);
    connect(&m_runner, &JobRunner::finished, this, [this] { endJob(true); });
}

void Page::refresh() {}

void Page::find() {}

void Page::openFile(const QString& /*path*/) {}

void Page::showPlace(const PlaceRequest& /*request*/) {}

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
    return m_footer->text();
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
    m_footer->show(kind, text);
    ApplicationLog::instance().write(level(kind), text);
}

// What stands there is not read out once more: nothing new has happened.
void Page::setStatus(const QString& text)
{
    if (!m_footer->shows(Report::Info, text))
        m_footer->show(Report::Info, text);
}

void Page::log(const QString& line)
{
    logInfo(line);
}

void Page::markRead()
{
    m_footer->markRead();
}

void Page::lookForChanges() {}

void Page::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_changeTimer.start(changeMilliseconds, this);
}

void Page::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_changeTimer.stop();
}

void Page::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_changeTimer.timerId())
        QWidget::timerEvent(event);
    else if (!isBusy() && !QApplication::activeModalWidget() && !QApplication::activePopupWidget())
        lookForChanges();
}

QPushButton* glowing(QPushButton* button)
{
    button->installEventFilter(&g_buttonMonitor);
    button->setIcon(QIcon()); // some styles give one to the common buttons of dialogs alone
    return button;
}
