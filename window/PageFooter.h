#pragma once

#include "window/PageContext.h"

#include <QWidget>

class QLabel;
class QToolButton;
class QUndoStack;

/// The line below a page's body: the last report, when the page was read, and buttons that read it
/// again and that undo and redo its changes. What a page does not use, it does not see.
class PageFooter : public QWidget
{
    Q_OBJECT

public:
    /// `changes` outlives the footer.
    explicit PageFooter(QUndoStack& changes, QWidget* parent = nullptr);

    /// Shows a report, as a sign and a text that an assistive tool reads out.
    void show(PageContext::Report kind, const QString& text);
    /// Whether that is what it shows already.
    bool shows(PageContext::Report kind, const QString& text) const
    {
        return m_kind == kind && m_text == text;
    }
    /// The text of the last report, whole.
    QString text() const { return m_text; }

    /// Shows that the page has been read at this moment.
    void markRead();

signals:
    void rereadRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void addUndo(QUndoStack& changes);
    void paintReport();

    QLabel* m_icon;
    PageContext::Report m_kind = PageContext::Report::Info; ///< of the last report
    QLabel* m_status;
    QString m_text; ///< whole: the label leaves out the middle of long words
    QLabel* m_read;
    QToolButton* m_reread;
};
