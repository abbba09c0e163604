#include "pages/displays/PointPanel.h"

#include "platform/PlatformServicesImp.h"
#include "window/AnswerField.h"
#include "window/ShownText.h"

#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

constexpr int farthest = 99999;

} // namespace

PointPanel::PointPanel(QWidget* parent)
    : QWidget(parent), m_pointer(new AnswerField(tr("Pointer"), QStringLiteral("pointer")))
{
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("Pointer:"), m_pointer);
    m_x = addCoordinate(tr("Point &X:"), form);
    m_y = addCoordinate(tr("Point &Y:"), form);
    auto* heading = new QLabel(QStringLiteral("MonitorFromPoint:"));
    heading->setContentsMargins(0, fontMetrics().height() / 2, 0, 0);
    form->addRow(heading);
    m_answers[MONITOR_DEFAULTTONULL] = addAnswer(
        QStringLiteral("DEFAULTTONULL"), tr("The monitor that holds the point, else null."), form);
    m_answers[MONITOR_DEFAULTTOPRIMARY] =
        addAnswer(QStringLiteral("DEFAULTTOPRIMARY"),
                  tr("The monitor that holds the point, else the primary one."), form);
    m_answers[MONITOR_DEFAULTTONEAREST] =
        addAnswer(QStringLiteral("DEFAULTTONEAREST"),
                  tr("The monitor that holds the point, else the one with the nearest edge line; "
                     "edge lines go on beyond the corners."),
                  form);
}

QSpinBox* PointPanel::addCoordinate(const QString& caption, QFormLayout* form)
{
    auto* spin = new QSpinBox;
    spin->setRange(-farthest, farthest);
    spin->setAccessibleName(withoutMnemonic(caption));
    form->addRow(caption, spin);
    connect(spin, QOverload<int>::of(&QSpinBox::valueChanged), this, &PointPanel::ask);
    return spin;
}

AnswerField* PointPanel::addAnswer(const QString& flag, const QString& tip, QFormLayout* form)
{
    auto* answer = new AnswerField(flag, flag);
    answer->setAccessibleDescription(tip);
    auto* caption = new QLabel(flag);
    caption->setToolTip(tip);
    form->addRow(caption, answer);
    return answer;
}

void PointPanel::focusFirst()
{
    m_x->setFocus(Qt::ShortcutFocusReason);
    m_x->selectAll();
}

QPoint PointPanel::point() const
{
    return {m_x->value(), m_y->value()};
}

void PointPanel::setPoint(const QPoint& point)
{
    {
        const QSignalBlocker blocker(m_x);
        m_x->setValue(point.x());
    }
    const QSignalBlocker blocker(m_y);
    m_y->setValue(point.y());
    ask();
}

void PointPanel::setMonitors(const std::vector<Monitor>& monitors)
{
    m_monitors = monitors;
    ask();
}

void PointPanel::setPointer(const QPoint& pointer)
{
    m_pointer->setAnswer(QStringLiteral("%1, %2").arg(pointer.x()).arg(pointer.y()));
}

void PointPanel::ask()
{
    for (unsigned int flags = 0; flags < m_answers.size(); ++flags) {
        const HMONITOR answer = g_PlatformServices.resourceManager()->MonitorFromPoint(
            {point().x(), point().y()}, flags);
        m_answers[flags]->setAnswer(monitorName(m_monitors, answer));
        if (flags == MONITOR_DEFAULTTONEAREST)
            m_nearest = answer;
    }
    emit asked();
}
