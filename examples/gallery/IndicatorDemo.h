#pragma once

#include <QGroupBox>

class QLayout;
class QProgressIndicator;
class QPushButton;

/// A page that an indicator covers while it is busy.
class IndicatorDemo : public QGroupBox
{
public:
    explicit IndicatorDemo(QWidget* parent = nullptr);

    /// Keeps the indicator over the whole page: by itself it takes the page's size only once.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* makeRunControls();
    QLayout* makeLookControls();
    void chooseColor(QPushButton& button);
    void start();

    QWidget* m_page;
    QProgressIndicator* m_indicator;
};
