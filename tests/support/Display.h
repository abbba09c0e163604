#pragma once

#include <QProcess>

/// A virtual X display with a window manager, for tests of real windows and real input.
/// Sets DISPLAY and the Qt platform; make it before the application object.
class Display
{
public:
    explicit Display(const QString& screen = QStringLiteral("1280x800x24"), bool manager = true);
    ~Display();

    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    /// Runs xdotool with these arguments and waits for it; true when it succeeded.
    static bool xdotool(const QStringList& arguments);

private:
    static void waitForManager();

    QProcess m_server;
    QProcess m_manager;
};
