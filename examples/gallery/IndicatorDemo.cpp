#include "examples/gallery/IndicatorDemo.h"

#include "examples/gallery/SamplePages.h"
#include "widgets/QProgressIndicator.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

QIcon patch(const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::darkGray);
    QPainter(&pixmap).fillRect(1, 1, 14, 14, color);
    return QIcon(pixmap);
}

} // namespace

IndicatorDemo::IndicatorDemo(QWidget* parent)
    : QGroupBox(QStringLiteral("Progress indicator"), parent),
      m_page(makeFormPage(6, this)),
      m_indicator(new QProgressIndicator(m_page))
{
    m_indicator->setColor(Qt::white);
    m_page->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(m_page, 1);
    layout->addLayout(makeRunControls());
    layout->addLayout(makeLookControls());
    start();
}

bool IndicatorDemo::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        m_indicator->resize(m_page->size());
    return QGroupBox::eventFilter(watched, event);
}

QLayout* IndicatorDemo::makeRunControls()
{
    auto* row = new QHBoxLayout;
    auto* startButton = new QPushButton(QStringLiteral("S&tart"), this);
    auto* stopButton = new QPushButton(QStringLiteral("Sto&p"), this);
    auto* delay = new QSpinBox(this);
    delay->setRange(1, 2000);
    delay->setSuffix(QStringLiteral(" ms"));
    delay->setValue(m_indicator->animationDelay());
    auto* label = new QLabel(QStringLiteral("Dela&y:"), this);
    label->setBuddy(delay);
    connect(startButton, &QPushButton::clicked, this, &IndicatorDemo::start);
    connect(stopButton, &QPushButton::clicked, m_indicator, &QProgressIndicator::stopAnimation);
    connect(delay, QOverload<int>::of(&QSpinBox::valueChanged), m_indicator,
            &QProgressIndicator::setAnimationDelay);
    for (QWidget* widget : {static_cast<QWidget*>(startButton), static_cast<QWidget*>(stopButton),
                            static_cast<QWidget*>(label), static_cast<QWidget*>(delay)})
        row->addWidget(widget);
    row->addStretch();
    return row;
}

QLayout* IndicatorDemo::makeLookControls()
{
    auto* row = new QHBoxLayout;
    auto* color = new QPushButton(patch(m_indicator->color()), QStringLiteral("&Colour..."), this);
    auto* displayed = new QCheckBox(QStringLiteral("&Displayed when stopped"), this);
    connect(color, &QPushButton::clicked, this, [this, color] { chooseColor(*color); });
    connect(displayed, &QCheckBox::toggled, m_indicator,
            &QProgressIndicator::setDisplayedWhenStopped);
    row->addWidget(color);
    row->addWidget(displayed);
    row->addStretch();
    return row;
}

void IndicatorDemo::chooseColor(QPushButton& button)
{
    const QColor color = QColorDialog::getColor(m_indicator->color(), this);
    if (!color.isValid())
        return;
    m_indicator->setColor(color);
    button.setIcon(patch(color));
}

void IndicatorDemo::start()
{
    m_indicator->raise();
    m_indicator->show();
    m_indicator->startAnimation();
}
