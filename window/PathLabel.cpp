#include "window/PathLabel.h"

#include "window/AccessibleRole.h"
#include "window/FocusFrame.h"
#include "window/ShownText.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>

namespace {

QString shown(const QString& path, PathLabel::Form form)
{
    if (form == PathLabel::FileName)
        return QFileInfo(path).fileName();
    const QString home = QDir::homePath() + QLatin1Char('/');
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
}

} // namespace

PathLabel::PathLabel(const QString& path, Form form, QWidget* parent)
    : QFrame(parent), m_path(path), m_text(shown(path, form))
{
    setAccessibleRole(*this, QAccessible::StaticText);
    setToolTip(plainToolTip(path));
    setAccessibleName(path);
    setFocusPolicy(Qt::StrongFocus);
    auto* action = new QAction(tr("Copy path"), this);
    action->setShortcut(QKeySequence::Copy);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, &PathLabel::copy);
    addAction(action);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
}

void PathLabel::setCaption(const QString& caption)
{
    setAccessibleName(caption + QLatin1Char(' ') + m_path);
}

void PathLabel::copy() const
{
    QGuiApplication::clipboard()->setText(m_path);
}

QSize PathLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_text) + 2, fontMetrics().height()};
}

QSize PathLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, fontMetrics().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_text, Qt::ElideMiddle, width()));
    if (hasFocus())
        paintFocusFrame(painter, *this, rect());
}
