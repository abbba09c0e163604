#include "window/PathEdit.h"

#include "window/ShownText.h"

#include <QStyleOptionFrame>
#include <QStylePainter>

namespace {

constexpr int sideMargin = 2; // what a line edit leaves beside its text

} // namespace

PathEdit::PathEdit(QWidget* parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString& path) { setToolTip(plainToolTip(path)); });
}

QRect PathEdit::room() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .marginsRemoved(textMargins())
        .adjusted(sideMargin, 0, -sideMargin, 0);
}

QString PathEdit::shown() const
{
    return fontMetrics().elidedText(text(), Qt::ElideMiddle, room().width());
}

void PathEdit::paintEvent(QPaintEvent* event)
{
    const QString ends = shown();
    if (hasFocus() || ends == text())
        return QLineEdit::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    painter.drawPrimitive(QStyle::PE_PanelLineEdit, option);
    painter.drawItemText(room(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(), ends,
                         QPalette::Text);
}
