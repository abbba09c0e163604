#include "app/pages/EmptyHint.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>

EmptyHint::EmptyHint(QAbstractItemView* view, const QString& text)
    : QObject(view), m_view(view), m_label(new QLabel(text, view->viewport()))
{
    m_label->setTextFormat(Qt::PlainText);
    m_label->setAlignment(Qt::AlignCenter);
    m_label->setWordWrap(true);
    m_label->setMargin(view->fontMetrics().height());
    m_label->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_label->setForegroundRole(QPalette::Text);
    view->viewport()->installEventFilter(this);
    const QAbstractItemModel* model = view->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyHint::update);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyHint::update);
    update();
}

void EmptyHint::setText(const QString& text)
{
    m_label->setText(text);
}

QString EmptyHint::text() const
{
    return m_label->isHidden() ? QString() : m_label->text();
}

bool EmptyHint::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        m_label->setGeometry(m_view->viewport()->rect());
    return QObject::eventFilter(watched, event);
}

void EmptyHint::update()
{
    m_label->setGeometry(m_view->viewport()->rect());
    m_label->setVisible(m_view->model()->rowCount() == 0);
}
