#include "examples/gallery/GalleryWindow.h"

#include "examples/gallery/GlowDemo.h"
#include "examples/gallery/IndicatorDemo.h"
#include "examples/gallery/SlideDemo.h"

#include <QGridLayout>

GalleryWindow::GalleryWindow(QWidget* parent) : QWidget(parent)
{
    setWindowTitle(QStringLiteral("Widget gallery"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    layout->addWidget(new SlideDemo(this), 0, 0, 2, 1);
    layout->addWidget(new IndicatorDemo(this), 0, 1);
    layout->addWidget(new GlowDemo(this), 1, 1);
    layout->setColumnStretch(0, 3);
    layout->setColumnStretch(1, 2);
    layout->setRowStretch(0, 1);
    resize(1080, 680);
}
