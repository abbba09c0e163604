#include "window/MainWindow.h"

#include "app/ApplicationLog.h"
#include "app/HostInformation.h"
#include "inspection/registry/RawStore.h"
#include "window/FileOpener.h"
#include "window/Page.h"
#include "window/PageRail.h"
#include "window/PageStack.h"
#include "window/StatusLine.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace {

// Comfortable for two columns of text, and never larger than the screen.
QSize firstSize(const QWidget& window)
{
    const int unit = window.fontMetrics().height();
    const QSize wanted(unit * 66, unit * 44);
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? wanted.boundedTo(screen->availableSize() * 0.9) : wanted;
}

// What the pages need, but no more than the smallest of screens. A minimum of its own keeps a page
// that is built later from enlarging the window, which start-up has centred by then.
QSize smallestSize(const QWidget& window)
{
    const int unit = window.fontMetrics().height();
    return QSize(unit * 46, unit * 34).boundedTo({800, 600}).expandedTo(window.minimumSizeHint());
}

bool takesTab(const QWidget& widget, const QWidget& window)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && !widget.focusProxy() &&
           widget.isEnabled() && widget.window() == &window && widget.isVisibleTo(&window);
}

} // namespace

MainWindow::MainWindow(QWidget* parent) : QWidget(parent)
{
    logInfo(QStringLiteral("Host library %1, settings store %2")
                .arg(HostInformation::libraryPath(), RawStore::fileName()));
    setWindowTitle(tr("Quayside"));
    const std::vector<PageEntry> pages = pageCatalogue();
    for (const PageEntry& page : pages)
        m_names.push_back(page.name);
    m_rail = new PageRail(pages);
    m_stack = new PageStack(pages);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_rail);
    middle->addWidget(m_stack, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(middle, 1);
    layout->addWidget(new StatusLine);
    m_rail->setChosen(0);
    connect(m_rail, &PageRail::chosen, this, &MainWindow::choose);
    connect(m_stack, &PageStack::entered, this, &MainWindow::logPage);
    addShortcuts(static_cast<int>(pages.size()));
    new FileOpener(this, m_rail, m_stack);
    setMinimumSize(smallestSize(*this));
    resize(firstSize(*this).expandedTo(minimumSize()));
}

void MainWindow::addShortcuts(int pages)
{
    for (int page = 0; page < pages; ++page) {
        auto* shortcut = new QShortcut(QKeySequence(QStringLiteral("Alt+%1").arg(page + 1)), this);
        connect(shortcut, &QShortcut::activated, this, [this, page] { choose(page); });
    }
    addShortcut(Qt::Key_F5, [](Page& page) { page.refresh(); });
    addShortcut(QKeySequence::Find, [](Page& page) { page.find(); });
    // A field that is being typed into takes these two for itself.
    addShortcut(QKeySequence::Undo, [](Page& page) { page.undoStack().undo(); });
    addShortcut(QKeySequence::Redo, [](Page& page) { page.undoStack().redo(); });
}

void MainWindow::addShortcut(const QKeySequence& keys, void (*operation)(Page& page))
{
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this, [this, operation] {
        Page* page = currentPage();
        if (page && !page->isBusy())
            operation(*page);
    });
}

// Qt would take a page, or a panel in it, for the control that has its focus, and go past the
// controls before that one.
bool MainWindow::focusNextPrevChild(bool next)
{
    const auto after = [next](const QWidget& widget) {
        return next ? widget.nextInFocusChain() : widget.previousInFocusChain();
    };
    const QWidget* from = focusWidget() ? focusWidget() : this;
    for (QWidget* widget = after(*from); widget != from; widget = after(*widget)) {
        if (!takesTab(*widget, *this))
            continue;
        widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

void MainWindow::showPage(const QString& name)
{
    const auto found = std::find(m_names.begin(), m_names.end(), name);
    if (found == m_names.end())
        return;
    const int page = static_cast<int>(found - m_names.begin());
    m_rail->setChosen(page);
    m_stack->open(page);
}

Page* MainWindow::currentPage() const
{
    return m_stack->page(m_stack->current());
}

void MainWindow::choose(int page)
{
    m_rail->setChosen(page);
    m_stack->slideTo(page);
}

void MainWindow::logPage(int page)
{
    logInfo(QStringLiteral("Page %1").arg(m_names[static_cast<std::size_t>(page)]));
}
