#pragma once

#include "inspection/JobRunner.h"
#include "window/PageContext.h"
#include "window/PlaceRequest.h"

#include <QBasicTimer>
#include <QPointer>
#include <QUndoStack>
#include <QWidget>

class BusyOverlay;
class PageFooter;
class QVBoxLayout;

/// A page of the main window.
///
/// How to add one:
///  1. Derive from Page in a folder of its own, `pages/<name>/`, beside a function that draws the
///     page's glyph.
///  2. Add a row to the table of `pages/PageCatalogue.cpp`: the page's name, its title with a
///     letter for Alt that no other title has, its glyph, its class and what it answers. That is
///     all that the window needs: the rail, the shortcuts, the option "/page", the help, the
///     pictures and the tests of all pages follow the catalogue. The window makes the page on the
///     first visit, as a child of its place in the stack.
///  3. In the constructor build the widgets into `body()`, set a focus proxy (`setFocusProxy`) to
///     the control that gets the keyboard when the page is opened, give every control an accessible
///     name, and install `g_buttonMonitor` on every push button (`glowing` does it).
///  4. Translate its title and its texts in `resources/translator/`.
///
/// What a page keeps to:
///  - Everything that it shows comes through `g_PlatformServices`, so that it shows what a host
///    library gets; text read past the services is marked as raw. Models know nothing of views.
///  - Nothing takes longer than 30 ms at a time. What may, is a job: see PageContext.
///  - It is live: what somebody else changes shows within a second, through `lookForChanges`.
///  - What it changes can be undone: a MadeChange goes onto the undo stack, a line of the audit
///    trail into the log.
///  - F5 calls `refresh`, Ctrl+F calls `find`, Ctrl+Z and Ctrl+Shift+Z undo and redo, all only
///    while no job runs. F2 and Delete belong to the page's own actions (QAction,
///    Qt::WidgetWithChildrenShortcut, added to the view).
///  - The mnemonics of the catalogue's titles choose pages: its own controls use other letters.
///  - Sizes come from the font (QFontMetrics, style metrics), colours from the palette, and every
///    text through tr(). With a 9 point font a page must fit the smallest window; where it does
///    not, as with a larger font, it scrolls.
///  - What happened, and what was refused and why, is told with `report`.
class Page : public QWidget, public PageContext
{
    Q_OBJECT

public:
    explicit Page(QWidget* parent = nullptr);

    /// Reads everything anew. Does nothing by default.
    virtual void refresh();
    /// Starts a search: shows or focuses what takes the text. Does nothing by default.
    virtual void find();

    /// Opens a file of the kind that the catalogue gives to the page. Called while the page is in
    /// view and no job runs. Does nothing by default.
    virtual void openFile(const QString& path);

    /// Shows what another page has asked for by `placeRequested`, or says that it is not there.
    /// Called as `openFile` is. Does nothing by default.
    virtual void showPlace(const PlaceRequest& request);

    /// Told by the window whenever the page has become the one in view, first after its
    /// construction. Does nothing by default.
    virtual void entered();

    /// The page's controls are disabled while a job runs.
    bool isBusy() const override { return m_runner.isRunning(); }

    /// Takes the keyboard: the control that gets it first, or Cancel while a job runs.
    void takeFocus();

    /// The text of the last report.
    QString statusText() const;

    /// As the Cancel button.
    void cancelJob();

    void report(Report kind, const QString& text) override;
    void setStatus(const QString& text) override;
    void log(const QString& line) override;
    QUndoStack& undoStack() override { return m_changes; }

signals:
    /// Something is to be shown on another page, which comes into view for that.
    void placeRequested(const PlaceRequest& request);

protected:
    /// Where the page's widgets go; below it stands the line of `report`.
    QVBoxLayout* body() const { return m_body; }

    /// Call it when what the page shows has been read: the footer tells when that was.
    void markRead();

    /// Called twice a second while the page is in view, no job runs and no dialog is open: reads
    /// anew what has changed since it was read. It has to find out cheaply (a time stamp, a
    /// counter), and keeps what is selected and typed. Does nothing by default.
    virtual void lookForChanges();

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void run(const QString& title, std::unique_ptr<Job> job,
             std::function<void(bool complete)> finished) override;
    void endJob(bool complete);
    void showProgress();

    QWidget* m_content;
    QVBoxLayout* m_body;
    QUndoStack m_changes;
    PageFooter* m_footer;
    QBasicTimer m_changeTimer; ///< runs while the page is in view
    BusyOverlay* m_overlay;
    JobRunner m_runner;
    std::unique_ptr<Job> m_job; ///< the one that runs
    std::function<void(bool complete)> m_finished;
    QPointer<QWidget> m_focusBefore;
};

class QPushButton;

/// Gives a button the look of the window's: the glow under the mouse and no icon; returns it.
QPushButton* glowing(QPushButton* button);
