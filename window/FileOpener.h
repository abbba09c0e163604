#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class Page;
class PageRail;
class PageStack;
class QEvent;
class QMimeData;
class QWidget;
struct PlaceRequest;

/// Takes files, and what one page asks of another, to the page that is for them.
///
/// It opens files that are dropped anywhere onto the window in the page that is for their kind,
/// which comes into view for that; of several at once it opens none and says so. A part of a page
/// that takes any file, as it says by the property `takesAnyFile`, goes first.
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
    /// Shows on its page what has been asked for; does nothing where there is no such page.
    void showPlace(const PlaceRequest& request);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What is to be done on a page.
    using Errand = std::function<void(Page& page)>;

    static int pageFor(const QString& path);
    static bool isForWindow(const QMimeData& data);
    void drop(const QMimeData& data);
    void go(int page, Errand errand);
    void deliver();

    QWidget* m_window;
    PageRail* m_rail;
    PageStack* m_stack;
    int m_page = -1; ///< where the errand is to be done
    Errand m_errand;
    QTimer* m_waiting;
};
