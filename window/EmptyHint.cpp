#include "window/EmptyHint.h"

#include "window/ShownText.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>

EmptyHint::EmptyHint(QAbstractItemView* view, const QString& text)
    : QObject(view), m_view(view), m_label(new QLabel(view->viewport()))
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    // Not PlaceholderText: where the palette only derives it, its brush has no style and paints
    // nothing.
    m_label->setForegroundRole(QPalette::Text);
    m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
    view->viewport()->installEventFilter(this);
    const QAbstractItemModel* model = view->model();
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::layoutChanged, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::update);
    setText(text);
}

void EmptyHint::setText(const QString& text)
{
    m_label->setText(withoutLongWords(text));
    update();
}

void EmptyHint::update()
{
    arrange();
    m_label->setVisible(m_view->model()->rowCount(m_view->rootIndex()) == 0);
}

void EmptyHint::arrange()
{
    const int margin = m_view->fontMetrics().height();
    m_label->setGeometry(m_view->viewport()->rect().adjusted(margin, 0, -margin, 0));
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        arrange();
    return QObject::eventFilter(watched, event);
}
