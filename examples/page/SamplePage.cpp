#include "SamplePage.h"

#include "widgets/ButtonMonitor.h"
#include "widgets/QAnimationStackedWidget.h"
#include "widgets/QProgressIndicator.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int workTime = 500; // milliseconds

} // namespace

SamplePage::SamplePage(QWidget* parent)
    : QWidget(parent), m_steps(new QAnimationStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_steps);
    m_steps->setDuration(300);
    m_steps->addWidget(makeFirstStep());
    m_steps->addWidget(makeSecondStep());
    // The stack keeps its page until the slide has ended.
    connect(m_steps, &QStackedWidget::currentChanged, this, &SamplePage::finished);
}

QWidget* SamplePage::makeFirstStep()
{
    auto* step = new QWidget(this);
    auto* layout = new QVBoxLayout(step);
    m_start = new QPushButton(tr("&Start"), step);
    m_start->setObjectName(QStringLiteral("start"));
    m_start->installEventFilter(&g_buttonMonitor);
    connect(m_start, &QPushButton::clicked, this, &SamplePage::work);
    layout->addWidget(new QLabel(tr("Something takes half a second."), step));
    layout->addWidget(m_start);
    return step;
}

QWidget* SamplePage::makeSecondStep()
{
    auto* step = new QLabel(tr("Done."), this);
    step->setAlignment(Qt::AlignCenter);
    return step;
}

// The wheel covers its parent as large as that is when the wheel is made, so it is made now.
void SamplePage::work()
{
    m_start->setEnabled(false);
    m_wheel = new QProgressIndicator(this);
    m_wheel->show();
    m_wheel->startAnimation();
    QTimer::singleShot(workTime, this, &SamplePage::showResult);
}

// Closing the wheel deletes it. next() is right for the step that follows: nextTo() with the
// current step would end all sliding.
void SamplePage::showResult()
{
    m_wheel->close();
    m_steps->next();
}
