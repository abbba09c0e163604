#pragma once

#include "window/PageCatalogue.h"
#include "window/PlaceRequest.h"

#include <QWidget>

class Page;
class QAnimationStackedWidget;

/// The pages, one in view. A later page slides in from the right, an earlier one from the left.
/// Pages are made on their first visit.
class PageStack : public QWidget
{
    Q_OBJECT

public:
    explicit PageStack(std::vector<PageEntry> pages, QWidget* parent = nullptr);

    /// Puts a page in view without sliding; for the time before the window is shown.
    void open(int page);
    /// Whether the control of a page that comes first gets the keyboard.
    enum class Keyboard
    {
        IntoPage,
        Stays
    };

    /// Slides to a page. While a slide runs the choice is remembered, the last one wins, and the
    /// slide to it follows. The page in view only gets the keyboard.
    void slideTo(int page, Keyboard keyboard = Keyboard::IntoPage);

    /// The page in view; the leaving one while a slide runs.
    int current() const;
    /// Null before the first visit.
    Page* page(int index) const;
    /// Makes the page unless it has been made.
    Page* made(int index);

signals:
    /// A page has come into view, by a slide or when the window was shown first.
    void entered(int page);
    /// A page has asked for something on another one.
    void placeRequested(const PlaceRequest& request);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* place(int index) const;
    void slid();
    void giveKeyboard();
    void enter();

    std::vector<PageEntry> m_pages;
    QAnimationStackedWidget* m_stack;
    bool m_opened = false; ///< the window has been painted
    bool m_sliding = false;
    Keyboard m_keyboard = Keyboard::IntoPage;
    int m_next = -1; ///< what was chosen while a slide ran, or -1
};
