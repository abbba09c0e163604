#include "app/CommandLine.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QTranslator>

namespace {

// The middle of the whole virtual desktop, not of the primary screen, and without regard to the
// window's frame: intended. Integer division truncates toward zero, also for a window that is
// larger than the desktop.
void centreOnDesktop(QWidget& window)
{
    if (const QWidget* desktop = QApplication::desktop())
        window.move((desktop->width() - window.width()) / 2,
                    (desktop->height() - window.height()) / 2);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication application(argc, argv);
    // The name under which desktops know the application, and find its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("quayside"));
    QTranslator appTranslator;
    QTranslator qtTranslator;
    parseCommandLine(argc, argv, appTranslator, qtTranslator);
    MainWindow window;
    window.showPage(requestedPage(argc, argv));
    window.openFile(requestedFile(argc, argv));
    centreOnDesktop(window);
    window.show();
    return QApplication::exec();
}
