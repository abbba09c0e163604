#include "inspection/input/CursorShapes.h"

#include "platform/PlatformServicesImp.h"

#include <QCursor>

QString CursorShapes::name(Qt::CursorShape shape)
{
    switch (shape) {
    case Qt::ArrowCursor: return tr("Arrow");
    case Qt::WaitCursor: return tr("Wait");
    case Qt::BusyCursor: return tr("Busy");
    case Qt::CrossCursor: return tr("Cross");
    case Qt::IBeamCursor: return tr("Text");
    case Qt::PointingHandCursor: return tr("Hand");
    case Qt::SizeAllCursor: return tr("Move");
    case Qt::ForbiddenCursor: return tr("Forbidden");
    default: return tr("shape %1").arg(shape);
    }
}

QString CursorShapes::current()
{
    const auto* cursor =
        static_cast<const QCursor*>(g_PlatformServices.cursorManager()->GetCursor());
    return cursor ? name(cursor->shape()) : tr("null: none is set");
}
