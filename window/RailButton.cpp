#include "window/RailButton.h"

#include "window/AccessibleRole.h"

#include <QEvent>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>

RailButton::RailButton(const QIcon& icon, const QString& text, QWidget* parent)
    : QPushButton(parent)
{
    setAccessibleRole(*this, QAccessible::PageTab);
    setIcon(icon);
    setText(text);
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    scaleIcon();
}

int RailButton::gap() const
{
    return fontMetrics().height() / 2;
}

void RailButton::scaleIcon()
{
    const int side = fontMetrics().height() * 5 / 4;
    setIconSize(QSize(side, side));
}

void RailButton::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        scaleIcon();
        updateGeometry();
    }
}

QSize RailButton::sizeHint() const
{
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {words.width() + iconSize().width() + 4 * gap(),
            qMax(words.height(), iconSize().height()) + gap() * 3 / 2};
}

QSize RailButton::minimumSizeHint() const
{
    return sizeHint();
}

QPalette::ColorRole RailButton::textRole() const
{
    return isChecked() ? QPalette::HighlightedText : QPalette::ButtonText;
}

void RailButton::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintField(painter);
    paintContent(painter);
}

void RailButton::paintField(QPainter& painter)
{
    QColor color = palette().color(isChecked() ? QPalette::Highlight : QPalette::Button);
    if (isDown())
        color = color.darker(115);
    const QRectF field = QRectF(rect()).adjusted(1, 1, -1, -1);
    const qreal radius = gap() * 0.6;
    painter.setBrush(color);
    painter.setPen(underMouse() ? QPen(palette().color(QPalette::Highlight)) : QPen(Qt::NoPen));
    painter.drawRoundedRect(field, radius, radius);
    if (!hasFocus())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(textRole()), 1, Qt::DotLine));
    painter.drawRoundedRect(field.adjusted(2, 2, -2, -2), radius, radius);
}

void RailButton::paintContent(QPainter& painter)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QRect rest = rect().adjusted(gap(), 0, -gap() / 2, 0);
    const QRect picture(QPoint(rest.left(), (height() - iconSize().height()) / 2), iconSize());
    const auto mode = isChecked() ? QIcon::Selected : QIcon::Normal;
    icon().paint(&painter, style()->visualRect(layoutDirection(), rect(), picture), Qt::AlignCenter,
                 isEnabled() ? mode : QIcon::Disabled);
    rest.setLeft(picture.right() + gap());
    const bool underline = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const auto mnemonic = underline ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const int flags = static_cast<int>(Qt::AlignLeft) | static_cast<int>(Qt::AlignVCenter) |
                      static_cast<int>(Qt::TextSingleLine) | static_cast<int>(mnemonic);
    style()->drawItemText(&painter, style()->visualRect(layoutDirection(), rect(), rest), flags,
                          palette(), isEnabled(), text(), textRole());
}
