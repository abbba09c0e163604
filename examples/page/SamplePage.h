#pragma once

#include <QWidget>

class QAnimationStackedWidget;
class QProgressIndicator;
class QPushButton;

/// A page of two steps: the first asks for some work, the second shows that it is done. The next
/// step slides in, a wheel turns over the page while the work lasts, and buttons glow below the
/// mouse.
class SamplePage : public QWidget
{
    Q_OBJECT

public:
    explicit SamplePage(QWidget* parent = nullptr);

signals:
    /// The second step is there.
    void finished();

private:
    QWidget* makeFirstStep();
    QWidget* makeSecondStep();
    void work();
    void showResult();

    QAnimationStackedWidget* m_steps;
    QPushButton* m_start = nullptr;
    QProgressIndicator* m_wheel = nullptr;
};
