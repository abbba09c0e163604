#pragma once

#include "inspection/SlicedJob.h"

#include <QPointer>
#include <QWidget>

class BusyOverlay;
class QLabel;
class QVBoxLayout;

/// A page of the main window.
///
/// How to add one:
///  1. Derive from Page in a folder of its own, `app/pages/<name>/`, and list the sources in
///     `app/pages/CMakeLists.txt`.
///  2. Put its class into the table in `app/pages/PageCatalogue.cpp`: `&made<YourPage>`. That is
///     all that the window needs; it makes the page on the first visit, as a child of its place in
///     the stack.
///  3. In the constructor build the widgets into `body()`, set a focus proxy (`setFocusProxy`) to
///     the control that gets the keyboard when the page is opened, give every control an accessible
///     name, and install `g_buttonMonitor` on every push button (`glowing` does it).
///
/// What a page keeps to:
///  - Everything that it shows comes through `g_PlatformServices`, so that it shows what a host
///    library gets; text read past the services is marked as raw. Models know nothing of views.
///  - Nothing takes longer than 30 ms at a time. What may, is a job: see `startJob`.
///  - F5 calls `refresh`, Ctrl+F calls `find`, both only while no job runs. F2 and Delete belong to
///    the page's own actions (QAction, Qt::WidgetWithChildrenShortcut, added to the view).
///  - The letters R P F O D I C L after Alt choose pages; do not use them as mnemonics.
///  - Sizes come from the font (QFontMetrics, style metrics), colours from the palette, and every
///    text through tr(). A page must fit 640 x 520 pixels with a 9 point font.
///  - What happened, and what was refused and why, is told with `report`.
class Page : public QWidget
{
    Q_OBJECT

public:
    enum class Report
    {
        Info,
        Warning,
        Error
    };

    explicit Page(QWidget* parent = nullptr);

    /// Reads everything anew. Does nothing by default.
    virtual void refresh();
    /// Starts a search: shows or focuses what takes the text. Does nothing by default.
    virtual void find();

    /// Told by the window whenever the page has become the one in view, first after its
    /// construction. Does nothing by default.
    virtual void entered();

    /// True while a job runs; the page's controls are then disabled.
    bool isBusy() const { return m_job.isRunning(); }

    /// Takes the keyboard: the control that gets it first, or Cancel while a job runs.
    void takeFocus();

    /// The text of the last report.
    QString statusText() const;

    struct Job
    {
        /// What is being done, such as "Searching".
        QString title;
        /// See SlicedJob::Step. Must not open dialogs.
        SlicedJob::Step step;
        /// The count so far in words, such as "1,234 values". May be empty.
        std::function<QString()> progress;
        /// Called once at the end, `complete` false after Cancel; the page is usable again then.
        /// Not called when the page is destroyed before.
        std::function<void(bool complete)> finished;
    };

    /// Runs a job. The page is covered, with a wheel, the progress and a Cancel button, unless the
    /// job ends within its first slice. One job at a time: a further one is ignored.
    void startJob(Job job);
    /// As the Cancel button.
    void cancelJob();

    /// See SlicedJob::endSlice.
    void endSlice() { m_job.endSlice(); }

    /// Shows `text` below the page's body until the next report, and logs it: never pass secrets.
    void report(Report kind, const QString& text);
    /// Shows `text` in the same place without logging it.
    void setStatus(const QString& text);

protected:
    /// Where the page's widgets go; below it stands the line of `report`.
    QVBoxLayout* body() const { return m_body; }

    void changeEvent(QEvent* event) override;

private:
    void showStatus(Report kind, const QString& text);
    void paintStatusIcon();
    void endJob(bool complete);
    void showProgress();

    QWidget* m_content;
    QVBoxLayout* m_body;
    QLabel* m_statusIcon;
    Report m_kind = Report::Info; ///< of the last report
    QLabel* m_status;
    QString m_statusText; ///< whole: the label leaves out the middle of long words
    BusyOverlay* m_overlay;
    SlicedJob m_job;
    Job m_current;
    QPointer<QWidget> m_focusBefore;
};

class QPushButton;

/// Gives a button the look of the window's: the glow under the mouse and no icon; returns it.
QPushButton* glowing(QPushButton* button);
