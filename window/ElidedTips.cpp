#include "window/ElidedTips.h"

#include "window/ShownText.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QTableView>
#include <QTextDocument>
#include <QToolTip>

namespace {

// A text that the tool tip begins with already is not said twice.
QString wholeTip(const QString& text, const QString& tip)
{
    const QString whole = plainToolTip(text);
    if (tip.isEmpty() || tip.startsWith(whole))
        return tip.isEmpty() ? whole : tip;
    if (!Qt::mightBeRichText(tip) && !Qt::mightBeRichText(text))
        return text + QLatin1Char('\n') + tip;
    const QString rich = Qt::mightBeRichText(tip) ? tip : Qt::convertFromPlainText(tip);
    return Qt::convertFromPlainText(text) + rich;
}

} // namespace

ElidedTips::ElidedTips(QTableView* table) : QObject(table), m_table(table)
{
    table->viewport()->installEventFilter(this);
    table->horizontalHeader()->viewport()->installEventFilter(this);
}

// Empty where nothing is elided: then the view shows what the model says.
QString ElidedTips::tipOfCell(const QPoint& place) const
{
    const QModelIndex cell = m_table->indexAt(place);
    const QString text = cell.data().toString();
    const int width = m_table->visualRect(cell).width();
    if (text.isEmpty() || m_table->sizeHintForIndex(cell).width() <= width)
        return {};
    return wholeTip(text, cell.data(Qt::ToolTipRole).toString());
}

QString ElidedTips::tipOfTitle(const QPoint& place) const
{
    const QHeaderView& header = *m_table->horizontalHeader();
    const int column = header.logicalIndexAt(place);
    if (column < 0 || header.sectionSizeHint(column) <= header.sectionSize(column))
        return {};
    const auto said = [this, column](int role) {
        return m_table->model()->headerData(column, Qt::Horizontal, role).toString();
    };
    return wholeTip(said(Qt::DisplayRole), said(Qt::ToolTipRole));
}

bool ElidedTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    const auto& asked = static_cast<const QHelpEvent&>(*event);
    const bool isCell = watched == m_table->viewport();
    const QString tip = isCell ? tipOfCell(asked.pos()) : tipOfTitle(asked.pos());
    if (tip.isEmpty())
        return QObject::eventFilter(watched, event);
    QToolTip::showText(asked.globalPos(), tip, static_cast<QWidget*>(watched));
    return true;
}
