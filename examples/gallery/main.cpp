#include "examples/gallery/GalleryWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    GalleryWindow window;
    window.show();
    return QApplication::exec();
}
