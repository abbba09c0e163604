#include "app/frame/PathLabel.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QPainter>

PathLabel::PathLabel(const QString& path, QWidget* parent) : QFrame(parent), m_path(path)
{
    setToolTip(path);
    setAccessibleDescription(path);
    auto* action = new QAction(tr("Copy path"), this);
    connect(action, &QAction::triggered, this, &PathLabel::copy);
    addAction(action);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
}

void PathLabel::copy() const
{
    QGuiApplication::clipboard()->setText(m_path);
}

QString PathLabel::shown() const
{
    const QString home = QDir::homePath() + QLatin1Char('/');
    return m_path.startsWith(home) ? QStringLiteral("~/") + m_path.mid(home.size()) : m_path;
}

QSize PathLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(shown()) + 2, fontMetrics().height()};
}

QSize PathLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(shown(), Qt::ElideMiddle, width()));
}
