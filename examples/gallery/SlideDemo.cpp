#include "examples/gallery/SlideDemo.h"

#include "examples/gallery/SamplePages.h"
#include "widgets/QAnimationStackedWidget.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int standardDuration = 600;
constexpr int pageCount = 3;

} // namespace

SlideDemo::SlideDemo(QWidget* parent)
    : QGroupBox(QStringLiteral("Sliding pages"), parent),
      m_layout(new QVBoxLayout(this)),
      m_position(new QLabel(this))
{
    m_layout->setContentsMargins(16, 16, 16, 16);
    m_layout->setSpacing(10);
    m_layout->addLayout(makeStepControls());
    m_layout->addLayout(makeTargetControls());
    renewStack();
}

QPushButton* SlideDemo::addButton(QLayout& row, const QString& text)
{
    auto* button = new QPushButton(text, this);
    row.addWidget(button);
    return button;
}

QSpinBox* SlideDemo::addNumber(QLayout& row, const QString& text, int largest)
{
    auto* label = new QLabel(text, this);
    auto* number = new QSpinBox(this);
    number->setMaximum(largest);
    label->setBuddy(number);
    row.addWidget(label);
    row.addWidget(number);
    return number;
}

QLayout* SlideDemo::makeStepControls()
{
    auto* row = new QHBoxLayout;
    connect(addButton(*row, QStringLiteral("P&revious")), &QPushButton::clicked, this,
            [this] { m_stack->forward(); });
    connect(addButton(*row, QStringLiteral("&Next")), &QPushButton::clicked, this,
            [this] { m_stack->next(); });
    m_duration = addNumber(*row, QStringLiteral("D&uration:"), 10000);
    m_duration->setSuffix(QStringLiteral(" ms"));
    m_duration->setValue(standardDuration);
    connect(m_duration, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int duration) { m_stack->setDuration(duration); });
    row->addStretch();
    row->addWidget(m_position);
    return row;
}

// The current page, or one that does not exist, may be asked for as well: from the right, that ends
// all sliding of this stack. Hence the button that makes a new one.
QLayout* SlideDemo::makeTargetControls()
{
    auto* row = new QHBoxLayout;
    m_target = addNumber(*row, QStringLiteral("To pa&ge:"), pageCount + 1);
    m_target->setValue(1);
    connect(addButton(*row, QStringLiteral("From the &left")), &QPushButton::clicked, this,
            [this] { m_stack->forwardTo(m_target->value() - 1); });
    connect(addButton(*row, QStringLiteral("From the r&ight")), &QPushButton::clicked, this,
            [this] { m_stack->nextTo(m_target->value() - 1); });
    row->addStretch();
    connect(addButton(*row, QStringLiteral("New stac&k")), &QPushButton::clicked, this,
            [this] { renewStack(); });
    return row;
}

void SlideDemo::renewStack()
{
    delete m_stack;
    m_stack = new QAnimationStackedWidget(this);
    m_stack->addWidget(makeTextPage());
    m_stack->addWidget(makeTablePage());
    m_stack->addWidget(makeFormPage(8));
    m_stack->setDuration(m_duration->value());
    m_layout->insertWidget(0, m_stack, 1);
    connect(m_stack, &QStackedWidget::currentChanged, this, &SlideDemo::showPosition);
    showPosition();
}

void SlideDemo::showPosition()
{
    m_position->setText(
        QStringLiteral("Page %1 of %2").arg(m_stack->currentIndex() + 1).arg(m_stack->count()));
}
