#pragma once

#include <QObject>
#include <QTimer>

class Page;
class PageRail;
class PageStack;
class QEvent;
class QMimeData;
class QWidget;

/// Opens files that are dropped anywhere onto the window in the page that is for their kind, which
/// comes into view for that; of several at once it opens none and says so. A part of a page that
/// takes any file, as it says by the property `takesAnyFile`, goes first.
class FileOpener : public QObject
{
    Q_OBJECT

public:
    /// The window owns it, and the other two.
    FileOpener(QWidget* window, PageRail* rail, PageStack* stack);

    /// The name of that property.
    static constexpr char takesAnyFile[] = "takesAnyFile";

    /// Opens a file in the page for it; does nothing where there is none.
    void open(const QString& path);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int pageFor(const QString& path) const;
    bool isForWindow(const QMimeData& data) const;
    void drop(const QMimeData& data);
    void deliver();

    QWidget* m_window;
    PageRail* m_rail;
    PageStack* m_stack;
    QString m_path; ///< that is to be opened
    QTimer* m_waiting;
};
