#include "window/FileOpener.h"

#include "window/Page.h"
#include "window/PageCatalogue.h"
#include "window/PageRail.h"
#include "window/PageStack.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace {

constexpr int waitMilliseconds = 50; // between two looks whether the page is ready

bool isDrag(const QEvent& event)
{
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
           event.type() == QEvent::Drop;
}

// The place of a page in the catalogue; negative where there is none of that name.
int indexOf(const QString& name)
{
    const std::vector<PageEntry> pages = pageCatalogue();
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [&name](const PageEntry& page) { return page.name == name; });
    return found == pages.end() ? -1 : static_cast<int>(found - pages.begin());
}

} // namespace

FileOpener::FileOpener(QWidget* window, PageRail* rail, PageStack* stack)
    : QObject(window), m_window(window), m_rail(rail), m_stack(stack), m_waiting(new QTimer(this))
{
    window->setAcceptDrops(true);
    qApp->installEventFilter(this);
    m_waiting->setInterval(waitMilliseconds);
    connect(m_waiting, &QTimer::timeout, this, &FileOpener::deliver);
}

int FileOpener::pageFor(const QString& path)
{
    return indexOf(pageForFile(path));
}

void FileOpener::open(const QString& path)
{
    go(pageFor(path), [path](Page& page) { page.openFile(path); });
}

void FileOpener::showPlace(const PlaceRequest& request)
{
    go(indexOf(request.page), [request](Page& page) { page.showPlace(request); });
}

void FileOpener::go(int page, Errand errand)
{
    if (page < 0)
        return;
    m_page = page;
    m_errand = std::move(errand);
    m_rail->setChosen(page);
    m_stack->slideTo(page);
    m_waiting->start();
    deliver();
}

// The page may have to be made first, or be at work. Whoever goes to another one meanwhile wants to
// see that one.
void FileOpener::deliver()
{
    if (m_rail->choice() != m_page)
        return m_waiting->stop();
    Page* page = m_stack->current() == m_page ? m_stack->page(m_page) : nullptr;
    if (!page || page->isBusy() || QApplication::activeModalWidget())
        return;
    m_waiting->stop();
    m_errand(*page);
}

bool FileOpener::isForWindow(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) {
        return url.isLocalFile() && pageFor(url.toLocalFile()) >= 0;
    });
}

void FileOpener::drop(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    if (urls.size() == 1)
        open(urls.first().toLocalFile());
    else if (Page* page = m_stack->page(m_stack->current()))
        page->report(Page::Report::Warning, tr("One file at a time, please."));
}

// A drag that a widget does not take is offered to the one around it, and so to the window. A text
// field would take the file for a text.
bool FileOpener::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = isDrag(*event) ? qobject_cast<QWidget*>(watched) : nullptr;
    if (!widget || widget->window() != m_window || widget->property(takesAnyFile).toBool())
        return false;
    auto& drag = static_cast<QDropEvent&>(*event);
    if (!isForWindow(*drag.mimeData()))
        return false;
    if (widget == m_window)
        drag.acceptProposedAction();
    else
        drag.ignore();
    if (widget == m_window && event->type() == QEvent::Drop)
        this->drop(*drag.mimeData());
    return true;
}
