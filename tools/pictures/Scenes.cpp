#include "tools/pictures/Scenes.h"

#include "pages/registry/RegistryPage.h"
#include "tools/pictures/DemoHome.h"
#include "window/PageCatalogue.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace {

// A value that a host library cannot read, and why.
void arrangeRegistry(PageDriver& driver)
{
    dynamic_cast<RegistryPage&>(driver.page()).goTo("Harbour/Crane", "Password");
}

// The value that the two families read differently.
void arrangeProfiles(PageDriver& driver)
{
    driver.enter("file", DemoHome::file(QStringLiteral("scanner.ini")));
    driver.control<QTableView>("lines").selectRow(8);
}

void arrangeFiles(PageDriver& driver)
{
    driver.enter("pattern", DemoHome::file(QStringLiteral("orders/*")));
    driver.control<QTableView>("entries").selectRow(1);
    const auto& exists = driver.control<QLineEdit>("exists"); // asked a moment later
    if (!QTest::qWaitFor([&exists] { return !exists.text().isEmpty(); }))
        qFatal("whether the file exists is not told");
}

void arrangeFonts(PageDriver& driver)
{
    driver.press("FontsPage", "Re&gister the system's fonts");
    auto& records = driver.control<QTableView>("records");
    const QModelIndexList found =
        records.model()->match(records.model()->index(0, 0), Qt::DisplayRole,
                               QStringLiteral("WenQuanYi Micro Hei"), 1, Qt::MatchExactly);
    records.selectRow(found.isEmpty() ? 0 : found.first().row());
    records.scrollTo(records.currentIndex(), QAbstractItemView::PositionAtCenter);
    records.setFocus();
}

// A point beside the monitors, for which the three flags give three answers.
void arrangeDisplays(PageDriver& driver)
{
    driver.named<QSpinBox>("PointPanel", "Point &X:").setValue(4600);
    driver.named<QSpinBox>("PointPanel", "Point &Y:").setValue(900);
}

void arrangeInput(PageDriver& driver)
{
    driver.press("KeyPanel", "Re&turn down");
    driver.named<QLineEdit>("FindWindowPanel", "Class na&me:")
        .setText(QStringLiteral("MainWindow"));
    driver.press("FindWindowPanel", "Find &now");
    QTest::keyPress(driver.window().windowHandle(), Qt::Key_Control, Qt::ControlModifier);
}

void arrangeCrypto(PageDriver& driver)
{
    driver.named<QLineEdit>("KeyInput", "Pass phra&se:").setText(QStringLiteral("north quay 7"));
    driver.named<QPlainTextEdit>("CipherPanel", "Clear te&xt")
        .setPlainText(QString::fromUtf8("licence: HC-40-00731\nsite: north quay (\xe7\xa0\x81"
                                        "\xe5\xa4\xb4)\nvalid until: 2027-12-31\nfeatures: "
                                        "crane, scanner, reports\n"));
    driver.press("CipherPanel", "E&ncrypt");
}

void arrangeLog(PageDriver& driver)
{
    DemoHome::fillLog();
    driver.page().refresh();
    driver.settle();
}

// A value that the library asks for, and that is not there.
void arrangeTrace(PageDriver& driver)
{
    driver.enter("file", DemoHome::file(QStringLiteral("crane.trace")));
    driver.settle();
    driver.control<QTableView>("calls").selectRow(2);
}

struct Scene
{
    const char* page; ///< its name in the catalogue
    void (*arrange)(PageDriver& driver);
};

constexpr Scene scenes[] = {
    {"registry", &arrangeRegistry}, {"profiles", &arrangeProfiles}, {"files", &arrangeFiles},
    {"fonts", &arrangeFonts},       {"displays", &arrangeDisplays}, {"input", &arrangeInput},
    {"crypto", &arrangeCrypto},     {"log", &arrangeLog},           {"trace", &arrangeTrace},
};

} // namespace

void checkScenes()
{
    const std::vector<PageEntry> pages = pageCatalogue();
    for (const Scene& scene : scenes) {
        const bool known = std::any_of(pages.begin(), pages.end(), [&scene](const PageEntry& page) {
            return page.name == QLatin1String(scene.page);
        });
        if (!known)
            qFatal("a scene for %s, which is no page", scene.page);
    }
}

void arrangeScene(const QString& page, PageDriver& driver)
{
    for (const Scene& scene : scenes) {
        if (page == QLatin1String(scene.page))
            scene.arrange(driver);
    }
}
