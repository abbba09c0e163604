#include "pages/input/InputPage.h"

#include "pages/input/CursorPanel.h"
#include "pages/input/FindWindowPanel.h"
#include "pages/input/KeyPanel.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>

namespace {

constexpr int liveMilliseconds = 100;

// After one of these the services may answer differently.
bool changesInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::ApplicationStateChange: return true;
    default: return false;
    }
}

} // namespace

InputPage::InputPage(QWidget* parent)
    : Page(parent),
      m_keys(new KeyPanel),
      m_cursor(new CursorPanel(*this)),
      m_find(new FindWindowPanel(*this))
{
    body()->setSpacing(fontMetrics().height() / 5);
    body()->addWidget(m_keys);
    auto* row = new QHBoxLayout;
    row->addWidget(m_cursor, 1);
    row->addWidget(m_find, 1);
    body()->addLayout(row);
    body()->addStretch(1);
    m_delivered.setSingleShot(true);
    connect(&m_delivered, &QTimer::timeout, this, &InputPage::refresh);
    connect(&m_timer, &QTimer::timeout, this, &InputPage::refresh);
    setFocusProxy(m_keys);
}

void InputPage::refresh()
{
    m_keys->refresh();
    m_cursor->refresh();
}

void InputPage::find()
{
    m_find->focusFirst();
}

// The timer has read everything already: the footer only has to tell so.
void InputPage::lookForChanges()
{
    markRead();
}

// An event is seen here before it is delivered: what it changes is asked for behind it.
bool InputPage::eventFilter(QObject* watched, QEvent* event)
{
    if (changesInput(event->type()) && !m_delivered.isActive())
        m_delivered.start(0);
    return Page::eventFilter(watched, event);
}

void InputPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    refresh();
    m_timer.start(liveMilliseconds);
    QCoreApplication::instance()->installEventFilter(this);
}

void InputPage::hideEvent(QHideEvent* event)
{
    QCoreApplication::instance()->removeEventFilter(this);
    m_timer.stop();
    m_delivered.stop();
    Page::hideEvent(event);
}
