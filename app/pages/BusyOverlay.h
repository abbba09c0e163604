#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QProgressIndicator;
class QPushButton;

/// Covers a page while a long job runs: a turning wheel, what is being done, how far it has come,
/// and a button (Escape) that cancels.
class BusyOverlay : public QWidget
{
    Q_OBJECT

public:
    /// Hidden at first; follows the size of `page`.
    explicit BusyOverlay(QWidget* page);

    /// Shows itself over the page and takes the keyboard focus.
    void cover(const QString& title);
    void setProgress(const QString& text);
    /// Hides itself.
    void uncover();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void cancelRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makePanel();
    void arrange();

    QPointer<QProgressIndicator> m_wheel;
    QLabel* m_title;
    QLabel* m_progress;
    QPushButton* m_cancel;
    QWidget* m_panel;
};
