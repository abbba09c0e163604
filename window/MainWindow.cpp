#include "window/MainWindow.h"

#include "app/ApplicationLog.h"
#include "app/HostInformation.h"
#include "inspection/registry/RawStore.h"
#include "inspection/registry/StoreWatch.h"
#include "window/AccessibleRole.h"
#include "window/FaintText.h"
#include "window/FileOpener.h"
#include "window/GlyphIcon.h"
#include "window/HelpWindow.h"
#include "window/Page.h"
#include "window/PageRail.h"
#include "window/PageStack.h"
#include "window/StatusLine.h"
#include "window/TabOrder.h"
#include "window/WindowGlyph.h"
#include "window/WindowSize.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

namespace {

// Comfortable for two columns of text where the screen has room for that.
QSize firstSize(const QWidget& window)
{
    const int unit = window.fontMetrics().height();
    const QSize wanted(unit * 66, unit * 44);
    const QScreen* screen = QGuiApplication::primaryScreen();
    // Window managers take about that much for a title bar, and for the other edges.
    return screen ? firstWindowSize(wanted, screen->virtualGeometry(),
                                    screen->availableVirtualGeometry(), unit * 2, unit / 3)
                  : wanted;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QWidget(parent), m_storeWatch(std::make_unique<StoreWatch>())
{
    logInfo(QStringLiteral("Host library %1, settings store %2")
                .arg(HostInformation::libraryPath(), RawStore::fileName()));
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(tr("Quayside"));
    makePlaceholdersFaint(*this);
    setWindowIcon(glyphIcon(&drawWindowGlyph));
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
    auto* status = new StatusLine;
    layout->addWidget(status);
    m_rail->setChosen(0);
    connect(m_rail, &PageRail::chosen, this, [this](int page) { m_stack->slideTo(page); });
    connect(m_rail, &PageRail::browsed, this,
            [this](int page) { m_stack->slideTo(page, PageStack::Keyboard::Stays); });
    connect(m_stack, &PageStack::entered, this, &MainWindow::logPage);
    connect(status, &StatusLine::helpRequested, this, &MainWindow::showHelp);
    addShortcuts(static_cast<int>(pages.size()));
    m_opener = new FileOpener(this, m_rail, m_stack);
    connect(m_stack, &PageStack::placeRequested, m_opener, &FileOpener::showPlace);
    // A minimum of its own keeps a page that is built later from enlarging the window, which
    // start-up has centred by then.
    setMinimumSize(smallestWindow.expandedTo(minimumSizeHint()));
    resize(firstSize(*this).expandedTo(minimumSize()));
}

MainWindow::~MainWindow() = default;

void MainWindow::addShortcuts(int pages)
{
    for (int page = 0; page < pages; ++page) {
        auto* shortcut = new QShortcut(QKeySequence(QStringLiteral("Alt+%1").arg(page + 1)), this);
        connect(shortcut, &QShortcut::activated, this, [this, page] {
            m_rail->setChosen(page);
            m_stack->slideTo(page);
        });
    }
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this, &MainWindow::showHelp);
    connect(new QShortcut(QKeySequence(QStringLiteral("Ctrl+Q")), this), &QShortcut::activated,
            this, &QWidget::close);
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
    QWidget* to = tabNeighbour(*this, next);
    if (to)
        to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return to != nullptr;
}

void MainWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        makePlaceholdersFaint(*this);
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

void MainWindow::openFile(const QString& path)
{
    if (path.isEmpty())
        return;
    showPage(pageForFile(path));
    m_opener->open(path);
}

Page* MainWindow::currentPage() const
{
    return m_stack->page(m_stack->current());
}

void MainWindow::showHelp()
{
    if (!m_help)
        m_help = new HelpWindow(pageCatalogue(), this);
    m_help->showAt(m_names[static_cast<std::size_t>(m_stack->current())]);
}

void MainWindow::logPage(int page)
{
    logInfo(QStringLiteral("Page %1").arg(m_names[static_cast<std::size_t>(page)]));
}
