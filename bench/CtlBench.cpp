// The start of the command line against a program that makes a QCoreApplication and nothing else,
// each in fresh processes, in turns; and the check of a profile of 10 MB.

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int rounds = 41;
constexpr double mostOverBare = 30; // milliseconds
constexpr double longestCheck = 2000;
constexpr int profileSize = 10 * 1000 * 1000;

double milliseconds(const QString& program, const QStringList& arguments)
{
    QElapsedTimer clock;
    clock.start();
    QProcess::execute(program, arguments);
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void compareStart(const char* name, const QStringList& arguments)
{
    std::vector<double> ours;
    std::vector<double> bare;
    for (int i = 0; i < rounds; ++i) {
        ours.push_back(milliseconds(QStringLiteral(QUAYSIDE_CTL), arguments));
        bare.push_back(
            milliseconds(QCoreApplication::applicationFilePath(), {QStringLiteral("bare")}));
    }
    std::printf("quaysidectl %s: %.1f ms, bare QCoreApplication %.1f ms, difference %.1f ms "
                "(at most %.0f)\n",
                name, median(ours), median(bare), median(ours) - median(bare), mostOverBare);
}

void writeProfile(const QString& path, int size)
{
    QByteArray text;
    for (int section = 0; text.size() < size; ++section) {
        text += "[section" + QByteArray::number(section) + "]\n";
        for (int key = 0; key < 50; ++key)
            text += "key" + QByteArray::number(key) + " = some value\n";
    }
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(text);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc > 1)
        return 0;
    const QTemporaryDir folder;
    const QString small = folder.filePath(QStringLiteral("small.ini"));
    const QString large = folder.filePath(QStringLiteral("large.ini"));
    writeProfile(small, 1);
    writeProfile(large, profileSize);
    compareStart("--quiet --version", {QStringLiteral("--quiet"), QStringLiteral("--version")});
    compareStart("--quiet profile get",
                 {QStringLiteral("--quiet"), QStringLiteral("profile"), QStringLiteral("get"),
                  small, QStringLiteral("section0"), QStringLiteral("key1")});
    std::vector<double> checks;
    for (int i = 0; i < rounds / 8; ++i)
        checks.push_back(milliseconds(QStringLiteral(QUAYSIDE_CTL),
                                      {QStringLiteral("profile"), QStringLiteral("check"), large}));
    std::printf("quaysidectl profile check of 10 MB: %.0f ms (at most %.0f)\n", median(checks),
                longestCheck);
    return 0;
}
