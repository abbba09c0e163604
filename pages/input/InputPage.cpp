#include "pages/input/InputPage.h"

#include "pages/input/CursorPanel.h"
#include "pages/input/FindWindowPanel.h"
#include "pages/input/KeyPanel.h"

#include <QHBoxLayout>

namespace {

constexpr int liveMilliseconds = 50;

} // namespace

InputPage::InputPage(QWidget* parent)
    : Page(parent),
      m_keys(new KeyPanel),
      m_cursor(new CursorPanel(*this)),
      m_find(new FindWindowPanel(*this))
{
    body()->addWidget(m_keys);
    auto* row = new QHBoxLayout;
    row->addWidget(m_cursor, 1);
    row->addWidget(m_find, 1);
    body()->addLayout(row);
    body()->addStretch(1);
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

void InputPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    refresh();
    m_timer.start(liveMilliseconds);
}

void InputPage::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    Page::hideEvent(event);
}
