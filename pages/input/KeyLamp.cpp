#include "pages/input/KeyLamp.h"

#include "inspection/input/KeyStates.h"
#include "window/AccessibleRole.h"
#include "window/FocusFrame.h"

#include <QPainter>

KeyLamp::KeyLamp(const VirtualKey& key, QWidget* parent)
    : QWidget(parent),
      m_code(key.code),
      m_name(QString::fromLatin1(key.name)),
      m_known(key.qtCode != 0)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleRole(*this, QAccessible::StaticText);
    describe();
}

void KeyLamp::describe()
{
    setAccessibleName(m_name);
    setAccessibleDescription(KeyStates::name(m_lit));
    setToolTip(QStringLiteral("%1 (0x%2)").arg(m_name).arg(m_code, 2, 16, QLatin1Char('0')));
}

void KeyLamp::refresh()
{
    const bool lit = KeyStates::isDown(m_code);
    if (lit == m_lit)
        return;
    m_lit = lit;
    describe();
    update();
}

QSize KeyLamp::sizeHint() const
{
    const int line = fontMetrics().height();
    return {fontMetrics().horizontalAdvance(m_name) + line * 5 / 3, line * 15 / 14};
}

QSize KeyLamp::minimumSizeHint() const
{
    return sizeHint();
}

// A known key has a full lamp; one that always reads as up has only a dashed outline.
void KeyLamp::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = fontMetrics().height() * 0.7;
    const QRectF lamp(side / 4, (height() - side) / 2, side, side);
    // Fainter, but not as faint as disabled texts are: the names are there to be read.
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(m_known ? 1 : 0.6);
    painter.setPen(QPen(line, side / 10, m_known ? Qt::SolidLine : Qt::DotLine));
    if (m_known)
        painter.setBrush(palette().color(m_lit ? QPalette::Highlight : QPalette::Base));
    painter.drawEllipse(lamp);
    painter.setPen(line);
    painter.drawText(rect().adjusted(static_cast<int>(side * 1.6), 0, 0, 0),
                     Qt::AlignVCenter | Qt::TextSingleLine, m_name);
    if (hasFocus())
        paintFocusFrame(painter, *this, rect());
}

void KeyLamp::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    emit focused();
}
