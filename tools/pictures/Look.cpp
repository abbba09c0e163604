#include "tools/pictures/Look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>

namespace {

constexpr int pointSize = 10;

QPalette darkPalette()
{
    const QColor text(230, 230, 230);
    const QColor faint(128, 128, 128);
    // Button, window and the shades of frames follow from these two.
    QPalette palette(QColor(58, 58, 62), QColor(45, 45, 48));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    palette.setColor(QPalette::ToolTipBase, QColor(60, 60, 64));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(90, 170, 250));
    return palette;
}

} // namespace

void applyLook(const QString& palette, const QString& fontFamily)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(palette == QLatin1String("dark")
                                 ? darkPalette()
                                 : QApplication::style()->standardPalette());
    QApplication::setFont(QFont(fontFamily, pointSize));
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_General, false);
}
