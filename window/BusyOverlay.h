#pragma once

#include <QElapsedTimer>
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
/// wheel. While progress is told, a new picture is taken twice a second, so that what the page
/// fills in meanwhile is seen. When the page changes its size or its looks, the picture is dropped,
/// and the page itself shows through until the next one.
class BusyOverlay : public QWidget
{
    Q_OBJECT

public:
    /// Hidden at first; lies over `content`, in the same parent, and follows its size.
    explicit BusyOverlay(QWidget* content);

    /// Shows itself over the page and takes the keyboard focus.
    void cover(const QString& title);
    /// Shows how far the job has come, below the title.
    void setProgress(const QString& text);
    /// Hides itself.
    void uncover();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The user has pressed Cancel or Escape. The overlay stays until `uncover`.
    void cancelRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makePanel();
    void arrange();
    void takePicture();
    void setPicture(const QPixmap& picture);

    QWidget* m_content;
    QPixmap m_picture;
    QElapsedTimer m_sincePicture;
    QPointer<QProgressIndicator> m_wheel;
    QLabel* m_title;
    QLabel* m_progress;
    QPushButton* m_cancel;
    QWidget* m_panel;
};
