#include "pages/profiles/ProfileFindBar.h"

#include "window/Page.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

ProfileFindBar::ProfileFindBar(QWidget* parent) : QWidget(parent), m_text(new QLineEdit)
{
    m_text->setObjectName(QStringLiteral("find"));
    m_text->setAccessibleName(tr("Text to find"));
    m_text->setPlaceholderText(tr("Text to find"));
    m_text->setAcceptDrops(false); // files dropped here are for the page
    auto* next = glowing(new QPushButton(tr("Ne&xt line")));
    next->setToolTip(QKeySequence(Qt::Key_F3).toString(QKeySequence::NativeText));
    auto* hide = glowing(new QPushButton(tr("&Hide")));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(next);
    layout->addWidget(hide);
    connect(m_text, &QLineEdit::returnPressed, this, &ProfileFindBar::nextRequested);
    connect(next, &QPushButton::clicked, this, &ProfileFindBar::nextRequested);
    connect(hide, &QPushButton::clicked, this, &ProfileFindBar::close);
}

void ProfileFindBar::open()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

QString ProfileFindBar::text() const
{
    return m_text->text();
}

void ProfileFindBar::close()
{
    hide();
    emit closed();
}

void ProfileFindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}
