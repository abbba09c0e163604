#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>

/// A home folder with data for the pages to show, whose short path looks natural in a picture. Made
/// anew by the constructor, which also points the environment at it, and removed by the destructor.
/// Make it before the application object.
class DemoHome
{
public:
    DemoHome();
    ~DemoHome();

    DemoHome(const DemoHome&) = delete;
    DemoHome& operator=(const DemoHome&) = delete;

    static QString file(const QString& name);

    /// Fills the settings store; the host library must have set it up.
    static void fillStore();
    /// Puts a day's lines into the place of what the log holds.
    static void fillLog();

private:
    static void fillOrders();
};
