#include "pages/displays/DisplaysPage.h"

#include "inspection/displays/MonitorQuery.h"
#include "inspection/input/PointerPosition.h"
#include "pages/displays/HandlePanel.h"
#include "pages/displays/MetricsPanel.h"
#include "pages/displays/MonitorMap.h"
#include "pages/displays/MonitorTable.h"
#include "pages/displays/PointPanel.h"
#include "window/ViewLook.h"

#include <QHBoxLayout>
#include <QTabWidget>

namespace {

constexpr int liveMilliseconds = 50;

} // namespace

DisplaysPage::DisplaysPage(QWidget* parent)
    : Page(parent),
      m_map(new MonitorMap),
      m_point(new PointPanel),
      m_tabs(new QTabWidget),
      m_table(new MonitorTable),
      m_metrics(new MetricsPanel),
      m_handles(new HandlePanel(*this))
{
    makeMap();
    makeTabs();
    showMonitors();
    if (!m_monitors.empty())
        m_point->setPoint(m_monitors.front().full.center());
    connect(&m_timer, &QTimer::timeout, this, &DisplaysPage::followPointer);
    setFocusProxy(m_map);
}

void DisplaysPage::makeMap()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_map, 1);
    row->addWidget(m_point, 0, Qt::AlignTop);
    body()->addLayout(row, 3);
    connect(m_map, &MonitorMap::pointChosen, m_point, &PointPanel::setPoint);
    connect(m_point, &PointPanel::asked, this, &DisplaysPage::showPoint);
}

void DisplaysPage::makeTabs()
{
    m_tabs->setAccessibleName(tr("Details"));
    m_tabs->addTab(m_table, tr("&Monitors"));
    m_tabs->addTab(m_metrics, tr("&System metrics"));
    m_tabs->addTab(m_handles, tr("&Graphics handles"));
    arrangeTabs(*m_tabs);
    body()->addWidget(m_tabs, 2);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        setStatus({}); // what was said of one tab is no news of another one
        if (m_tabs->currentWidget() == m_handles)
            m_handles->refresh();
    });
}

void DisplaysPage::refresh()
{
    showMonitors();
    m_metrics->refresh();
    if (m_tabs->currentWidget() == m_handles)
        m_handles->refresh();
}

void DisplaysPage::find()
{
    m_point->focusFirst();
}

void DisplaysPage::showMonitors()
{
    m_monitors = monitors();
    m_map->setMonitors(m_monitors);
    m_table->setMonitors(m_monitors);
    m_point->setMonitors(m_monitors);
    markRead();
}

void DisplaysPage::showPoint()
{
    m_map->setPoint(m_point->point());
    m_map->setAnswer(monitorAt(m_point->point(), MONITOR_DEFAULTTONEAREST));
}

// Monitors come and go, and panels change the work area: looked at now and then, not only on F5.
void DisplaysPage::followPointer()
{
    m_map->setPointer(pointerPosition());
    m_point->setPointer(pointerPosition());
    if (!(monitors() == m_monitors))
        refresh();
}

// The monitors are followed with the pointer; what is in another tab is read when it is shown.
void DisplaysPage::lookForChanges()
{
    const QWidget* tab = m_tabs->currentWidget();
    if ((tab == m_handles && m_handles->lookForChanges()) ||
        (tab == m_metrics && m_metrics->lookForChanges()))
        markRead();
}

void DisplaysPage::showEvent(QShowEvent* event)
{
    Page::showEvent(event);
    followPointer();
    m_timer.start(liveMilliseconds);
}

void DisplaysPage::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    Page::hideEvent(event);
}
