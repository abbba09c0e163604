// page_pictures FOLDER LANGUAGE PALETTE [WIDTHxHEIGHT]: saves
// FOLDER/<page>-<language>-<palette>.png for every page of the window. LANGUAGE is "en" or "zh",
// PALETTE "light" or "dark". Start it in the folder of the application, which holds Qt's own
// catalogues.
#include "app/CommandLine.h"
#include "tests/platform/graphics/VirtualScreen.h"
#include "tests/support/Display.h"
#include "tools/pictures/DemoHome.h"
#include "tools/pictures/Look.h"
#include "tools/pictures/Scenes.h"
#include "window/PageCatalogue.h"

#include <QApplication>
#include <QCursor>
#include <QTranslator>

#include <iostream>

namespace {

// As the application does it, through its own option.
void chooseLanguage(bool chinese, QTranslator& appTranslator, QTranslator& qtTranslator)
{
    std::string arguments[] = {"quayside", "/language", chinese ? "zh-CN" : "en"};
    char* pointers[] = {arguments[0].data(), arguments[1].data(), arguments[2].data()};
    parseCommandLine(3, pointers, appTranslator, qtTranslator);
}

QSize sizeOf(const QString& text)
{
    const QStringList sides = text.split(QLatin1Char('x'));
    return {sides.value(0).toInt(), sides.value(1).toInt()};
}

bool save(const QString& page, const QSize& size, const QString& path)
{
    PageDriver driver(page, size);
    arrangeScene(page, driver);
    if (driver.picture().save(path))
        return true;
    std::cerr << path.toStdString() << " cannot be written\n";
    return false;
}

bool saveAll(const QStringList& arguments)
{
    const QSize size = sizeOf(arguments.value(4, QStringLiteral("1280x800")));
    bool saved = true;
    for (const PageEntry& page : pageCatalogue())
        saved &= save(page.name, size,
                      QStringLiteral("%1/%2-%3-%4.png")
                          .arg(arguments[1], page.name, arguments[2], arguments[3]));
    return saved;
}

} // namespace

int main(int argc, char** argv)
{
    const DemoHome home;
    const Display display({"-screen", "0", "2560x1600x24"});
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4) {
        std::cerr << "usage: page_pictures FOLDER LANGUAGE PALETTE [WIDTHxHEIGHT]\n";
        return 2;
    }
    QApplication::setApplicationName(QStringLiteral("quayside"));
    QApplication::setQuitOnLastWindowClosed(false);
    // A second monitor, with a panel at its foot, for the map of them to have something to tell.
    const VirtualScreen second({2560, 300, 1920, 1200}, {2560, 300, 1920, 1140});
    const bool chinese = arguments[2] == QLatin1String("zh");
    applyLook(arguments[3],
              chinese ? QStringLiteral("WenQuanYi Micro Hei") : QStringLiteral("DejaVu Sans"));
    QTranslator appTranslator;
    QTranslator qtTranslator;
    chooseLanguage(chinese, appTranslator, qtTranslator);
    DemoHome::fillStore();
    QCursor::setPos(2000, 1300); // where nothing of the window glows under it
    checkScenes();
    return saveAll(arguments) ? 0 : 1;
}
