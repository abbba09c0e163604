// Starts as the application does, prints the entry of each page, and shows the window with the
// first page in it. Only the libraries that it links need anything of the host library.

#include "app/CommandLine.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QPushButton>
#include <QTranslator>

#include <iostream>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QTranslator appTranslator;
    QTranslator qtTranslator;
    parseCommandLine(argc, argv, appTranslator, qtTranslator);
    MainWindow window;
    for (const QPushButton* entry : window.findChildren<QPushButton*>())
        std::cout << entry->objectName().toStdString() << '\n';
    window.show();
    while (!window.currentPage())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}
