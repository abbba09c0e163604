#include "window/ViewFocus.h"

#include "window/FocusFrame.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

// Lies over the frame of the view and leaves out what is inside, so that nothing has to be painted
// under it when the view scrolls.
class Frame : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter(this).fillRect(rect(), focusColor());
    }
};

// As dark as the colour, so that what is written on it can be read as well.
QColor greyOf(const QColor& color)
{
    const int grey = qGray(color.rgb());
    return {grey, grey, grey};
}

} // namespace

ViewFocus::ViewFocus(QAbstractItemView* view)
    : QObject(view), m_view(view), m_frame(new Frame(view))
{
    m_frame->setAttribute(Qt::WA_TransparentForMouseEvents);
    view->installEventFilter(this);
    update();
}

void ViewFocus::update()
{
    const bool hasFocus = m_view->hasFocus();
    arrange();
    m_frame->setVisible(hasFocus);
    takeColors(hasFocus);
}

void ViewFocus::takeColors(bool hasFocus)
{
    const QColor marked = QApplication::palette().color(QPalette::Active, QPalette::Highlight);
    QPalette colors = m_view->palette();
    colors.setColor(QPalette::Active, QPalette::Highlight, hasFocus ? marked : greyOf(marked));
    colors.setColor(QPalette::Inactive, QPalette::Highlight, greyOf(marked));
    // Some styles let all texts of such a view fade, so that they recede behind its fainter ones.
    colors.setColor(QPalette::Inactive, QPalette::Text,
                    QApplication::palette().color(QPalette::Active, QPalette::Text));
    if (colors != m_view->palette()) // setting them is a change of its own
        m_view->setPalette(colors);
}

void ViewFocus::arrange()
{
    const int line = std::max(m_view->frameWidth(), 1);
    const QRect whole = m_view->rect();
    m_frame->setGeometry(whole);
    m_frame->setMask(QRegion(whole) - QRegion(whole.adjusted(line, line, -line, -line)));
    m_frame->raise();
}

bool ViewFocus::eventFilter(QObject* watched, QEvent* event)
{
    // The focus leaves a view that goes when this is no more than a QWidget.
    if (!qobject_cast<QAbstractItemView*>(watched))
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Resize:
    case QEvent::PaletteChange:
    case QEvent::ApplicationPaletteChange:
    case QEvent::StyleChange: update(); break;
    default: break;
    }
    return QObject::eventFilter(watched, event);
}
