#include "examples/gallery/GlowDemo.h"

#include "widgets/ButtonMonitor.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

// Installs the monitor; a page needs no more than this for each button.
template <typename Widget>
Widget* watched(Widget* widget)
{
    widget->installEventFilter(&g_buttonMonitor);
    return widget;
}

QToolButton* makeToolButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setText(QStringLiteral("A tool button"));
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return button;
}

} // namespace

GlowDemo::GlowDemo(QWidget* parent) : QGroupBox(QStringLiteral("Glow under the mouse"), parent)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(18); // room for the glow
    auto* open = watched(new QPushButton(QStringLiteral("&Open"), this));
    auto* save = watched(new QPushButton(QStringLiteral("&Save"), this));
    auto* enabled = new QCheckBox(QStringLiteral("\"Save\" is &enabled"), this);
    auto* note = new QLabel(QStringLiteral("Watched too, but no push buttons:"), this);
    enabled->setChecked(true);
    connect(enabled, &QCheckBox::toggled, save, &QWidget::setEnabled);
    layout->addWidget(open, 0, 0);
    layout->addWidget(save, 0, 1);
    layout->addWidget(enabled, 1, 0, 1, 2);
    layout->addWidget(note, 2, 0, 1, 2);
    layout->addWidget(watched(makeToolButton(this)), 3, 0);
    layout->addWidget(watched(new QLabel(QStringLiteral("A label"), this)), 3, 1, Qt::AlignCenter);
}
