// What a recorded call costs: the same calls in a program of its own, as it is and with the
// recorder, in turns.

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int rounds = 9;
constexpr int batches = 20;
constexpr int batchSize = 1000;    // calls: a millisecond for them is a microsecond for each
constexpr double mostForBatch = 5; // milliseconds

double milliseconds(IPlatformRegisterManager& registry)
{
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < batchSize; ++i) {
        unsigned int number = 0;
        unsigned int size = sizeof number;
        registry.RegQueryValueExW(HKEY_CURRENT_USER, L"Number", nullptr, nullptr,
                                  reinterpret_cast<unsigned char*>(&number), &size);
    }
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

// The program that is recorded. It prints its best time: other programs disturb that least.
void makeCalls()
{
    const QTemporaryDir folder;
    QSettings store(folder.filePath(QStringLiteral("store.ini")), QSettings::IniFormat);
    g_globalSettings = &store;
    setPlatformServices(&g_PlatformServices);
    IPlatformRegisterManager& registry =
        *static_cast<IPlatformServices&>(g_PlatformServices).registerManager();
    const unsigned int number = 42;
    registry.RegSetValueExW(HKEY_CURRENT_USER, L"Number", 0, REG_DWORD,
                            reinterpret_cast<const unsigned char*>(&number), sizeof number);
    double best = milliseconds(registry);
    for (int batch = 1; batch < batches; ++batch)
        best = std::min(best, milliseconds(registry));
    g_globalSettings = nullptr;
    std::printf("%f\n", best);
}

// 0 where the program does not print a time.
double timeOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return process.readAllStandardOutput().toDouble();
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc > 1) {
        makeCalls();
        return 0;
    }
    const QTemporaryDir folder;
    const QString self = QCoreApplication::applicationFilePath();
    double plain = timeOf(self, {QStringLiteral("calls")});
    double recorded = 1e9;
    for (int round = 0; round < rounds; ++round) {
        plain = std::min(plain, timeOf(self, {QStringLiteral("calls")}));
        recorded =
            std::min(recorded, timeOf(QStringLiteral(QUAYSIDE_CTL),
                                      {QStringLiteral("trace"), QStringLiteral("record"),
                                       QStringLiteral("--all"), QStringLiteral("-o"),
                                       folder.filePath(QStringLiteral("recording")),
                                       QStringLiteral("--"), self, QStringLiteral("calls")}));
    }
    if (plain <= 0 || recorded <= 0) {
        std::puts("The calls were not made.");
        return 1;
    }
    std::printf("%d calls recorded: %.2f ms, as they are %.2f ms, difference %.2f ms "
                "(at most %.0f)\n",
                batchSize, recorded, plain, recorded - plain, mostForBatch);
    return 0;
}
