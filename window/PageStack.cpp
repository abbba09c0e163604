#include "window/PageStack.h"

#include "widgets/QAnimationStackedWidget.h"
#include "window/AccessibleRole.h"
#include "window/Page.h"
#include "window/ShownText.h"

#include <QApplication>
#include <QVBoxLayout>

namespace {

constexpr int slideMilliseconds = 250;

// An assistive tool reads out the page's name.
void announce(Page& page)
{
    QAccessibleEvent alert(&page, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace

PageStack::PageStack(std::vector<PageEntry> pages, QWidget* parent)
    : QWidget(parent), m_pages(std::move(pages)), m_stack(new QAnimationStackedWidget(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    m_stack->setDuration(slideMilliseconds);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        auto* holder = new QWidget;
        (new QVBoxLayout(holder))->setContentsMargins(0, 0, 0, 0);
        m_stack->addWidget(holder);
    }
    // Queued: the next slide must not start from inside the end of the one before.
    connect(m_stack, &QStackedWidget::currentChanged, this, &PageStack::slid, Qt::QueuedConnection);
}

QWidget* PageStack::place(int index) const
{
    return m_stack->widget(index);
}

int PageStack::current() const
{
    return m_stack->currentIndex();
}

Page* PageStack::page(int index) const
{
    const QWidget* holder = place(index);
    return holder ? holder->findChild<Page*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

Page* PageStack::made(int index)
{
    if (Page* page = this->page(index))
        return page;
    QWidget* holder = place(index);
    Page* page = m_pages[static_cast<std::size_t>(index)].create(holder);
    setAccessibleRole(*page, QAccessible::PropertyPage);
    page->setAccessibleName(withoutMnemonic(m_pages[static_cast<std::size_t>(index)].title));
    connect(page, &Page::placeRequested, this, &PageStack::placeRequested);
    holder->layout()->addWidget(page);
    page->show(); // left to the layout it would come too late for the keyboard focus
    return page;
}

void PageStack::open(int page)
{
    m_stack->setCurrentIndex(page);
}

// The stack itself must never be asked for the page in view: a slide to it never ends.
void PageStack::slideTo(int page, Keyboard keyboard)
{
    if (!place(page))
        return;
    m_keyboard = keyboard;
    if (m_sliding) {
        m_next = page;
        return;
    }
    if (page == current()) {
        giveKeyboard();
        return;
    }
    made(page);
    m_sliding = true;
    if (page > current())
        m_stack->nextTo(page);
    else
        m_stack->forwardTo(page);
}

void PageStack::slid()
{
    if (!m_sliding)
        return;
    m_sliding = false;
    enter();
    if (m_next >= 0)
        slideTo(std::exchange(m_next, -1), m_keyboard);
}

void PageStack::giveKeyboard()
{
    Page* page = this->page(current());
    if (page && m_keyboard == Keyboard::IntoPage)
        page->takeFocus();
}

void PageStack::enter()
{
    Page* page = made(current());
    page->entered();
    giveKeyboard();
    announce(*page);
    emit entered(current());
}

// The first page is made after the window has been painted once, so that the window is up sooner.
void PageStack::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    if (m_opened)
        return;
    m_opened = true;
    QMetaObject::invokeMethod(this, &PageStack::enter, Qt::QueuedConnection);
}
