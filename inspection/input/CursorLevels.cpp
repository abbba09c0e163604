#include "inspection/input/CursorLevels.h"

#include "platform/PlatformServicesImp.h"

#include <QCursor>
#include <QGuiApplication>

CursorLevels::~CursorLevels()
{
    takeBack();
}

void CursorLevels::add(Qt::CursorShape shape)
{
    QCursor cursor(shape);
    g_PlatformServices.cursorManager()->SetCursor(&cursor);
    ++m_count;
}

void CursorLevels::takeBack()
{
    for (; m_count > 0; --m_count)
        QGuiApplication::restoreOverrideCursor();
}
