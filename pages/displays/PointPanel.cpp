#include "pages/displays/PointPanel.h"

#include "inspection/displays/MonitorQuery.h"
#include "inspection/input/PointerPosition.h"
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
    for (const MonitorFlag& flag : monitorFlags)
        m_answers[flag.value] = addAnswer(flag, form);
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

AnswerField* PointPanel::addAnswer(const MonitorFlag& flag, QFormLayout* form)
{
    const QString name = QString::fromLatin1(flag.name);
    auto* answer = new AnswerField(name, name);
    answer->setAccessibleDescription(flag.ruleText());
    auto* caption = new QLabel(name);
    caption->setToolTip(flag.ruleText());
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
    m_pointer->setAnswer(pointText(pointer));
}

void PointPanel::ask()
{
    for (const MonitorFlag& flag : monitorFlags)
        m_answers[flag.value]->setAnswer(monitorName(m_monitors, monitorAt(point(), flag.value)));
    emit asked();
}
