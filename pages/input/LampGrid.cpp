#include "pages/input/LampGrid.h"

#include "pages/input/KeyLamp.h"
#include "window/AccessibleRole.h"

#include <QGridLayout>
#include <QKeyEvent>

LampGrid::LampGrid(const std::vector<VirtualKey>& keys, int rows, QWidget* parent)
    : QWidget(parent), m_rows(rows)
{
    setAccessibleRole(*this, QAccessible::Grouping);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    for (const VirtualKey& key : keys) {
        const int place = static_cast<int>(m_lamps.size());
        auto* lamp = new KeyLamp(key);
        lamp->setFocusPolicy(Qt::ClickFocus);
        grid->addWidget(lamp, place % rows, place / rows);
        connect(lamp, &KeyLamp::focused, this, [this, place] { stopAt(place); });
        m_lamps.push_back(lamp);
    }
    stopAt(0);
}

void LampGrid::refresh()
{
    for (KeyLamp* lamp : m_lamps)
        lamp->refresh();
}

void LampGrid::stopAt(int lamp)
{
    m_lamps[static_cast<std::size_t>(m_stop)]->setFocusPolicy(Qt::ClickFocus);
    m_stop = lamp;
    m_lamps[static_cast<std::size_t>(m_stop)]->setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(m_lamps[static_cast<std::size_t>(m_stop)]);
}

// Where the key leads to; -1 for a key that leads nowhere, or out of the grid.
int LampGrid::target(int key) const
{
    const int count = static_cast<int>(m_lamps.size());
    const auto inside = [count](int place) { return place < count ? place : -1; };
    switch (key) {
    case Qt::Key_Up: return m_stop - 1;
    case Qt::Key_Down: return inside(m_stop + 1);
    case Qt::Key_Left: return m_stop - m_rows;
    case Qt::Key_Right: return inside(m_stop + m_rows);
    case Qt::Key_Home: return 0;
    case Qt::Key_End: return count - 1;
    default: return -1;
    }
}

void LampGrid::keyPressEvent(QKeyEvent* event)
{
    const int place = event->modifiers() & ~Qt::KeypadModifier ? -1 : target(event->key());
    if (place < 0)
        QWidget::keyPressEvent(event);
    else
        m_lamps[static_cast<std::size_t>(place)]->setFocus(Qt::TabFocusReason);
}
