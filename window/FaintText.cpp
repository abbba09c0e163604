#include "window/FaintText.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

namespace {

constexpr double share = 0.7; // of the text's own colour; the rest is the ground's

double mixed(double text, double ground)
{
    return text * share + ground * (1 - share);
}

} // namespace

// Not the palette's PlaceholderText: to some styles that is the colour of every text.
QColor faintText()
{
    const QPalette palette = QGuiApplication::palette();
    const QColor& text = palette.color(QPalette::Active, QPalette::Text);
    const QColor& ground = palette.color(QPalette::Active, QPalette::Base);
    return QColor::fromRgbF(mixed(text.redF(), ground.redF()),
                            mixed(text.greenF(), ground.greenF()),
                            mixed(text.blueF(), ground.blueF()));
}

void makePlaceholdersFaint(QWidget& window)
{
    QPalette colors = window.palette();
    colors.setColor(QPalette::PlaceholderText, faintText());
    if (colors != window.palette()) // setting them is a change of its own
        window.setPalette(colors);
}
