// The registry page on a store of 100,000 values, 10,000 of them in one key: how long it keeps the
// event loop from turning, against a plain table of as many rows.

#include "bench/Comparison.h"

#include "app/pages/registry/RegistryPage.h"
#include "app/pages/registry/RegistrySearch.h"
#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QSettings>
#include <QStringListModel>
#include <QTableView>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int valuesInOneKey = 10000;
constexpr int values = 100000;
constexpr double longestStall = 100.0;

void fillStore()
{
    for (int i = 0; i < values; ++i) {
        const bool large = i < valuesInOneKey;
        const QString key = large ? QStringLiteral("Vendor0/Large")
                                  : QStringLiteral("Vendor%1/Key%2").arg(i % 10).arg(i / 100);
        g_globalSettings->setValue(QStringLiteral("%1/Value%2").arg(key).arg(i),
                                   QStringLiteral("5$the text of value %1").arg(i));
    }
    g_globalSettings->sync();
}

// Everything that one action of the user brings about before the next one is heard.
double stall(const std::function<void()>& action)
{
    QElapsedTimer clock;
    clock.start();
    action();
    QApplication::processEvents();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

void print(const char* what, double milliseconds)
{
    std::printf("%-44s %7.1f ms without a turn (at most %.0f)\n", what, milliseconds, longestStall);
}

double longestScroll(QTableView& table)
{
    double longest = 0;
    QScrollBar* bar = table.verticalScrollBar();
    for (int at = 0; at <= bar->maximum(); at += bar->pageStep() * 4)
        longest = qMax(longest, stall([bar, at] { bar->setValue(at); }));
    return longest;
}

void searchAll()
{
    RegistrySearch search(QStringLiteral("no such text"), QString(), true, true);
    while (search.step()) {
    }
}

double longestSearchStep()
{
    RegistrySearch search(QStringLiteral("no such text"), QString(), true, true);
    double longest = 0;
    bool more = true;
    while (more)
        longest = qMax(longest, stall([&more, &search] { more = search.step(); }));
    return longest;
}

void measurePage()
{
    RegistryPage page;
    page.resize(1000, 700);
    print("registry page: open", stall([&page] { page.show(); }));
    print("registry page: enter", stall([&page] { page.entered(); }));
    print("registry page: a key of 10,000 values",
          stall([&page] { page.goTo(QStringLiteral("Vendor0/Large")); }));
    auto* table = page.findChild<QTableView*>(QStringLiteral("values"));
    print("registry page: scroll, the longest", longestScroll(*table));
    print("registry page: search, the longest step", longestSearchStep());

    QTableView plain;
    QStringListModel model;
    QStringList rows;
    for (int i = 0; i < valuesInOneKey; ++i)
        rows.append(QStringLiteral("the text of value %1").arg(i));
    model.setStringList(rows);
    plain.setModel(&model);
    plain.resize(table->size());
    plain.show();
    QApplication::processEvents();
    const Comparison comparison(7);
    comparison.run(
        "scroll through 10,000 values", [table] { longestScroll(*table); }, "plain table",
        [&plain] { longestScroll(plain); });
    comparison.run("search 100,000 values", searchAll, "list and read them without the service",
                   [] {
                       const QStringList keys = g_globalSettings->allKeys();
                       int found = 0;
                       for (const QString& key : keys)
                           found += g_globalSettings->value(key).toString().contains(
                                        QLatin1String("no such text"), Qt::CaseInsensitive)
                                        ? 1
                                        : 0;
                       if (found != 0)
                           std::printf("unexpected hits\n");
                   });
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    qputenv("XDG_STATE_HOME", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    setPlatformServices(&g_PlatformServices);
    fillStore();
    measurePage();
    return 0;
}
