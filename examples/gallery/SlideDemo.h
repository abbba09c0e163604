#pragma once

#include <QGroupBox>

class QAnimationStackedWidget;
class QLabel;
class QLayout;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

/// A stack of pages with a button for each way to slide.
class SlideDemo : public QGroupBox
{
public:
    explicit SlideDemo(QWidget* parent = nullptr);

private:
    QLayout* makeStepControls();
    QLayout* makeTargetControls();
    QPushButton* addButton(QLayout& row, const QString& text);
    QSpinBox* addNumber(QLayout& row, const QString& text, int largest);
    void renewStack();
    void showPosition();

    QVBoxLayout* m_layout;
    QAnimationStackedWidget* m_stack = nullptr;
    QSpinBox* m_duration = nullptr;
    QSpinBox* m_target = nullptr;
    QLabel* m_position;
};
