#include "window/MenuKey.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool isMenuKey(const QKeyEvent& event)
{
    const bool isShiftF10 = event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
    return isShiftF10 || event.key() == Qt::Key_Menu;
}

} // namespace

MenuKey::MenuKey(QAbstractItemView* view) : QObject(view), m_view(view)
{
    view->installEventFilter(this);
}

bool MenuKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !isMenuKey(*static_cast<QKeyEvent*>(event)))
        return QObject::eventFilter(watched, event);
    openMenu();
    return true;
}

void MenuKey::openMenu()
{
    const QWidget* viewport = m_view->viewport();
    const QRect item = m_view->visualRect(m_view->currentIndex()).intersected(viewport->rect());
    const QPoint at = viewport->mapTo(m_view, item.isEmpty() ? QPoint() : item.center());
    QContextMenuEvent event(QContextMenuEvent::Keyboard, at, m_view->mapToGlobal(at));
    QCoreApplication::sendEvent(m_view, &event);
}
