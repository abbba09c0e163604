#pragma once

#include <QProcess>

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

    /// Runs xdotool with these arguments and waits for it; true when it succeeded.
    static bool xdotool(const QStringList& arguments);

private:
    void startManager();
    static void waitForManager();

    QByteArray m_formerDisplay;
    QProcess m_server;
    QProcess m_manager;
};
