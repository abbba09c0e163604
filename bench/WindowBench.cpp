// The registry page on a store of 100,000 values, 10,000 of them in one key, the files page on a
// directory of 100,000 entries, and the page of recordings on one of 1,000,000 calls: how long they
// keep the event loop from turning, against a plain table of as many rows.

#include "bench/Ratio.h"

#include "host/HostLibraries.h"
#include "inspection/registry/CompletionJob.h"
#include "inspection/registry/KeysAlongJob.h"
#include "inspection/registry/NearestKeyJob.h"
#include "inspection/registry/RegistryImportJob.h"
#include "inspection/registry/RegistrySearchJob.h"
#include "inspection/registry/StoreOpeningJob.h"
#include "inspection/registry/TypedAddress.h"
#include "pages/files/FilesPage.h"
#include "pages/registry/RegistryPage.h"
#include "pages/trace/TracePage.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/RandomRecording.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QStandardPaths>
#include <QStringListModel>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

constexpr int valuesInOneKey = 10000;
constexpr int values = 100000;
constexpr int entries = 100000;
constexpr int calls = 1000000;
constexpr double longestStall = 100.0;
constexpr double longestStallOfCalls = 50.0;

// Written by another process, so that the page meets a store that was
// read from its file.
void writeStore(const QString& file)
{
    QSettings store(file, QSettings::IniFormat);
    for (int i = 0; i < values; ++i) {
        const bool large = i < valuesInOneKey;
        const QString key = large ? QStringLiteral("Vendor0/Large")
                                  : QStringLiteral("Vendor%1/Key%2").arg(i % 10).arg(i / 100);
        store.setValue(QStringLiteral("%1/Value%2").arg(key).arg(i),
                       QStringLiteral("5$the text of value %1").arg(i));
    }
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

void print(const char* what, double milliseconds, double most = longestStall)
{
    std::printf("%-44s %7.1f ms without a turn (at most %.0f)\n", what, milliseconds, most);
}

double longestScroll(QTableView& table)
{
    double longest = 0;
    QScrollBar* bar = table.verticalScrollBar();
    for (int at = 0; at <= bar->maximum(); at += bar->pageStep() * 4)
        longest = qMax(longest, stall([bar, at] { bar->setValue(at); }));
    return longest;
}

// At places all over a table of very many rows.
double longestJump(QTableView& table)
{
    constexpr int places = 100;
    double longest = 0;
    QScrollBar* bar = table.verticalScrollBar();
    for (int place = 0; place <= places; ++place)
        longest =
            qMax(longest, stall([bar, place] { bar->setValue(bar->maximum() / places * place); }));
    return longest;
}

void searchAll()
{
    RegistrySearchJob search({QStringLiteral("no such text")});
    while (search.step()) {
    }
}

// The same list, read and searched without the service.
void readAll()
{
    const QStringList keys = g_globalSettings->allKeys();
    int found = 0;
    for (const QString& key : keys)
        found += g_globalSettings->value(key).toString().contains(QLatin1String("no such text"),
                                                                  Qt::CaseInsensitive)
                     ? 1
                     : 0;
    if (found != 0)
        std::printf("unexpected hits\n");
}

void searchAgainstPlainReading(benchmark::State& state)
{
    compare(state, searchAll, readAll);
}

double longestStep(Job& job)
{
    double longest = 0;
    bool more = true;
    while (more)
        longest = qMax(longest, stall([&more, &job] { more = job.step(); }));
    return longest;
}

double longestStep(Job&& job)
{
    return longestStep(job);
}

void rounds(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(7);
}

BENCHMARK(searchAgainstPlainReading)->Apply(rounds);

void makeFiles(const QTemporaryDir& folder)
{
    for (int i = 0; i < entries; ++i) {
        QFile file(folder.filePath(QStringLiteral("entry %1.txt").arg(i)));
        if (!file.open(QIODevice::WriteOnly))
            std::printf("cannot make %s\n", qUtf8Printable(file.fileName()));
    }
}

void measureFilesPage()
{
    const QTemporaryDir folder;
    makeFiles(folder);
    FilesPage page;
    page.resize(1000, 700);
    page.show();
    QApplication::processEvents();
    page.findChild<QLineEdit*>(QStringLiteral("pattern"))->setText(folder.filePath("*"));
    auto* search = page.findChild<QPushButton*>(QStringLiteral("search"));
    double longest = stall([search] { search->click(); });
    while (page.isBusy())
        longest = qMax(longest, stall([] {}));
    print("files page: open, the longest", longest);
    auto* table = page.findChild<QTableView*>(QStringLiteral("entries"));
    if (table->model()->rowCount() != entries)
        std::printf("unexpected rows\n");
    print("files page: scroll, the longest", longestScroll(*table));
}

// Until `isDone()` is true; the longest that one turn of the event loop took.
template <typename Condition>
double longestTurn(const std::function<void()>& action, Condition isDone)
{
    QElapsedTimer clock;
    clock.start();
    double longest = stall(action);
    while (!isDone())
        longest = qMax(longest, stall([] {}));
    std::printf("%.1f s: ", static_cast<double>(clock.elapsed()) / 1e3);
    return longest;
}

void printCalls(const char* what, double milliseconds)
{
    print(what, milliseconds, longestStallOfCalls);
}

void measureTracePage()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.trace")));
    if (!file.open(QIODevice::ReadWrite))
        std::printf("cannot make %s\n", qUtf8Printable(file.fileName()));
    file.write(RandomRecording(1).make(calls));
    file.flush();
    TracePage page;
    page.resize(1000, 700);
    page.show();
    QApplication::processEvents();
    auto* table = page.findChild<QTableView*>(QStringLiteral("calls"));
    auto* text = page.findChild<QLineEdit*>(QStringLiteral("text"));
    const auto hasAll = [&] { return !page.isBusy() && table->model()->rowCount() >= calls; };
    const auto isStill = [&] { return !page.isSearching(); };
    printCalls("trace page: open a million calls, the longest",
               longestTurn([&] { page.openFile(file.fileName()); }, hasAll));
    printCalls("trace page: scroll, the longest", longestJump(*table));
    printCalls("trace page: type a text, the longest",
               longestTurn([&] { text->setText(QStringLiteral("name7")); }, isStill));
    printCalls("trace page: clear it, the longest", longestTurn([&] { text->clear(); }, hasAll));
    const auto first = [&] { return table->model()->index(0, 0).data().toInt(); };
    printCalls("trace page: sort, the longest",
               longestTurn([&] { table->model()->sort(0, Qt::DescendingOrder); },
                           [&] { return first() == calls; }));
    printCalls("trace page: the original order, the longest",
               longestTurn([&] { table->model()->sort(-1); }, [&] { return first() == 1; }));
    auto* tabs = page.findChild<QTabWidget*>();
    auto* asked = page.findChild<QTableView*>(QStringLiteral("asked"));
    printCalls("trace page: what was absent, the longest",
               longestTurn([tabs] { tabs->setCurrentIndex(3); },
                           [asked] { return asked->model()->rowCount() > 0; }));
    tabs->setCurrentIndex(0);
    file.write(MadeRecording::line(calls + 1, MadeRecording::close("0x1")));
    file.flush();
    printCalls("trace page: follow, the longest",
               longestTurn([] {}, [&] { return table->model()->rowCount() > calls; }));
}

// The work that looks at each name of one very large key.
void measureHugeKey()
{
    std::vector<RegistryValueName> names;
    QByteArray file("Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\Huge]\n");
    for (int i = 0; i < values; ++i) {
        names.push_back({QStringLiteral("Huge"), QStringLiteral("Value%1").arg(i)});
        g_globalSettings->setValue(names.back().key + QLatin1Char('/') + names.back().name,
                                   QStringLiteral("1$1"));
        file += "\"Value" + QByteArray::number(i) + "\"=dword:00000001\n";
    }
    // Otherwise the store would save itself, which takes as long as QSettings takes to write
    // 200,000 entries, in the first turn that is measured.
    g_globalSettings->sync();
    const auto index = RegistryIndex::read();
    const QString typed = QStringLiteral("HKLM\\Huge\\Vaule1");
    print("a key of 100,000: complete, the longest step",
          longestStep(CompletionJob(index, QStringLiteral("HKLM\\Huge\\v"), 100)));
    NearestKeyJob nearest(index, pathsOfAddress(typed));
    print("a key of 100,000: mistyped, the longest step", longestStep(nearest));
    if (nearest.difference() != NearestKeyJob::Difference::None)
        std::printf("unexpected key %s\n", qUtf8Printable(nearest.path()));
    print("a key of 100,000: delete all, the longest step",
          longestStep(KeysAlongJob(std::move(names))));
    print("a key of 100,000: import, the longest step", longestStep(RegistryImportJob(file)));
}

void measureRegistryPage()
{
    std::unique_ptr<RegistryPage> made;
    print("registry page: make and show", stall([&made] {
              made = std::make_unique<RegistryPage>();
              made->resize(1000, 700);
              made->show();
          }));
    RegistryPage& page = *made;
    print("registry page: open the store, the longest", longestStep(StoreOpeningJob()));
    print("registry page: list the store first", stall([&page] { page.refresh(); }));
    print("registry page: refresh", stall([&page] { page.refresh(); }));
    print("registry page: a key of 10,000 values",
          stall([&page] { page.goTo(QStringLiteral("Vendor0/Large")); }));
    auto* table = page.findChild<QTableView*>(QStringLiteral("values"));
    print("registry page: scroll, the longest", longestScroll(*table));
    print("registry page: search, the longest step",
          longestStep(RegistrySearchJob({QStringLiteral("no such text")})));

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
    benchmark::RegisterBenchmark("scrollAgainstPlainTable", [table,
                                                             &plain](benchmark::State& state) {
        compare(
            state, [table] { longestScroll(*table); }, [&plain] { longestScroll(plain); });
    })->Apply(rounds);
    benchmark::RunSpecifiedBenchmarks();
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
    if (argc > 1) {
        writeStore(QString::fromLocal8Bit(argv[1]));
        return 0;
    }
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QProcess::execute(QCoreApplication::applicationFilePath(),
                      {folder + QStringLiteral("/registry.ini")});
    setPlatformServices(&g_PlatformServices);
    benchmark::Initialize(&argc, argv);
    measureFilesPage();
    measureTracePage();
    measureRegistryPage();
    measureHugeKey();
    return 0;
}
