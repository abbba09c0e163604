#pragma once

#include <QPixmap>
#include <QPointer>
#include <QWidget>

class QLabel;
class QProgressIndicator;
class QPushButton;

/// Covers a page while a long job runs: a turning wheel, what is being done, how far it has come,
/// and a button (Escape) that cancels.
///
/// It shows a picture of the page, so that the page is not painted again at every step of the
/// wheel; what the page changes meanwhile shows at the end. A page that changes its size or its
/// looks, or that is not in view yet when the job begins, shows through as it is.
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
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makePanel();
    void arrange();
    void setPicture(const QPixmap& picture);

    QPixmap m_picture;
    QPointer<QProgressIndicator> m_wheel;
    QLabel* m_title;
    QLabel* m_progress;
    QPushButton* m_cancel;
    QWidget* m_panel;
};
