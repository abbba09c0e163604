#pragma once

#include "window/PageCatalogue.h"

#include <QWidget>

class QButtonGroup;

/// The column of buttons that choose pages. Exactly one is checked: the page chosen last.
class PageRail : public QWidget
{
    Q_OBJECT

public:
    explicit PageRail(const std::vector<PageEntry>& pages, QWidget* parent = nullptr);

    /// The page chosen last.
    int choice() const;
    /// Checks the button of this page without emitting anything.
    void setChosen(int page);

signals:
    /// The user has pressed the button of this page, which may be the one in view.
    void chosen(int page);
    /// The user has come to the button of this page with an arrow key, and is still in the rail.
    void browsed(int page);

private:
    void tell(int page);

    QButtonGroup* m_buttons;
};
