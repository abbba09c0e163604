// From main to the first painted window: the application's window against an empty one, each in a
// fresh process, in turns.

#include "app/CommandLine.h"
#include "tests/support/Display.h"
#include "window/MainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QProcess>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr int rounds = 21;
constexpr double limit = 1.25;

// Ends the application once the window has been painted and prints the microseconds until then.
class FirstPaint : public QObject
{
public:
    FirstPaint(const QElapsedTimer& clock, QWidget& window) : m_clock(clock)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            // Queued first of all: what the window itself has put off comes later.
            QMetaObject::invokeMethod(
                this, [this] { end(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void end()
    {
        std::printf("%lld\n", m_clock.nsecsElapsed() / 1000);
        QApplication::quit();
    }

    const QElapsedTimer& m_clock;
    bool m_seen = false;
};

template <typename Window>
int child(int argc, char** argv)
{
    QElapsedTimer clock;
    clock.start();
    QApplication application(argc, argv);
    QTranslator appTranslator;
    QTranslator qtTranslator;
    if (!std::is_same_v<Window, QMainWindow>)
        parseCommandLine(1, argv, appTranslator, qtTranslator);
    Window window;
    if (std::is_same_v<Window, QMainWindow>)
        window.resize(1122, 748); // as large as the other
    FirstPaint paint(clock, window);
    window.show();
    return QApplication::exec();
}

double microseconds(const QString& program, const char* mode)
{
    QProcess process;
    process.start(program, {QLatin1String(mode)});
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().toDouble();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1)
        return qstrcmp(argv[1], "window") == 0 ? child<MainWindow>(argc, argv)
                                               : child<QMainWindow>(argc, argv);
    const QCoreApplication application(argc, argv);
    std::optional<Display> display;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        display.emplace();
    // Tests do without OpenGL; users start with what Qt finds.
    qunsetenv("QT_XCB_GL_INTEGRATION");
    const QString program = QCoreApplication::applicationFilePath();
    std::vector<double> ours;
    std::vector<double> peers;
    for (int i = 0; i < rounds; ++i) {
        ours.push_back(microseconds(program, "window"));
        peers.push_back(microseconds(program, "empty"));
    }
    std::printf("start-up to first paint: window %.1f ms, empty window %.1f ms, ratio %.2f "
                "(at most %.2f)\n",
                median(ours) / 1000, median(peers) / 1000, median(ours) / median(peers), limit);
    return 0;
}
