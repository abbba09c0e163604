#include "pages/log/TailFollower.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

TailFollower::TailFollower(QAbstractScrollArea* view) : QObject(view)
{
    QScrollBar* bar = view->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar](int value) { m_atEnd = value >= bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar] {
        if (m_atEnd)
            bar->setValue(bar->maximum());
    });
}
