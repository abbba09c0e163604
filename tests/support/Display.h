#pragma once

#include "tests/support/ChildProcess.h"

class QWidget;

/// A virtual X display, for tests of real windows and real input. Sets DISPLAY and the Qt platform
/// for this process and its children; make the one that the process itself uses before the
/// application object.
class Display
{
public:
    enum Manager
    {
        WithManager,
        WithoutManager
    };

    /// `arguments` go to the server: its screens and extensions.
    explicit Display(const QStringList& arguments = {"-screen", "0", "1280x800x24"},
                     Manager manager = WithManager);
    ~Display();

    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// Makes a shown window the active one, as a taskbar would: the manager refuses a request of
    /// the window's own now and then, and ignores any for a window that it does not manage yet.
    static bool activate(const QWidget& window);

    /// Runs xdotool with these arguments and waits for it; true when it succeeded.
    static bool xdotool(const QStringList& arguments);

private:
    void startManager();
    static void waitForManager();

    QByteArray m_formerDisplay;
    ChildProcess m_server;
    ChildProcess m_manager;
};
