#pragma once

#include "window/MainWindow.h"
#include "window/Page.h"

#include <QImage>

/// The real window, opened on one page and driven through its controls. What is not found ends the
/// program.
class PageDriver
{
public:
    PageDriver(const QString& page, const QSize& size);

    MainWindow& window() { return m_window; }
    Page& page() const { return *m_window.currentPage(); }

    /// The control of this object name.
    template <typename Control>
    Control& control(const char* name) const
    {
        auto* found = page().findChild<Control*>(QLatin1String(name));
        return checked(found, name);
    }

    /// The control of this accessible name, given as the text in the source of the class `context`,
    /// mnemonic included.
    template <typename Control>
    Control& named(const char* context, const char* text) const
    {
        return checked(qobject_cast<Control*>(withName(context, text)), text);
    }

    /// Types into a line edit and presses Enter.
    void enter(const char* name, const QString& text) const;
    /// Presses the button of this caption, given as in `named`.
    void press(const char* context, const char* text) const;
    /// Waits until no job runs.
    void settle() const;
    QImage picture();

private:
    template <typename Control>
    static Control& checked(Control* found, const char* what)
    {
        if (!found)
            qFatal("no control %s", what);
        return *found;
    }

    QWidget* withName(const char* context, const char* text) const;

    MainWindow m_window;
};
