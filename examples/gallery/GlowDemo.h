#pragma once

#include <QGroupBox>

/// Buttons that glow under the mouse, and widgets that do not although they are watched too.
class GlowDemo : public QGroupBox
{
public:
    explicit GlowDemo(QWidget* parent = nullptr);
};
