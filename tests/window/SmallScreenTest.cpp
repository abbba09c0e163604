#include "window/MainWindow.h"

#include "host/HostLibraries.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/WaitFor.h"
#include "window/Page.h"
#include "window/StatusLine.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// A panel along the lower edge of the screen, which window managers keep free of windows.
class Panel
{
public:
    explicit Panel(int height)
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        m_widget.setAttribute(Qt::WA_X11NetWmWindowTypeDock);
        m_widget.setWindowFlag(Qt::FramelessWindowHint);
        m_widget.setGeometry(0, screen.height() - height, screen.width(), height);
        m_widget.show();
        EXPECT_TRUE(waitForExposed(&m_widget));
        const int pixels = qRound(height * m_widget.devicePixelRatioF());
        ChildProcess xprop;
        xprop.start(QStringLiteral("xprop"),
                    {"-id", QString::number(m_widget.winId()), "-f", "_NET_WM_STRUT", "32c", "-set",
                     "_NET_WM_STRUT", QStringLiteral("0, 0, 0, %1").arg(pixels)});
        EXPECT_TRUE(xprop.waitForFinished() && xprop.exitCode() == 0);
        EXPECT_TRUE(waitFor([screen, height] {
            return QGuiApplication::primaryScreen()->availableGeometry().height() <=
                   screen.height() - height;
        }));
    }

private:
    QWidget m_widget;
};

// As start-up does it.
void centre(QWidget& window)
{
    const QWidget* desktop = QApplication::desktop();
    window.move((desktop->width() - window.width()) / 2, (desktop->height() - window.height()) / 2);
}

// This program runs on screens of 800 x 600, of 1024 x 600, and of 1920 x 1080 at 200 %.
TEST(SmallScreen, HasRoomForTitleBarPanelAndStatusLine)
{
    setPlatformServices(&g_PlatformServices);
    const Panel panel(30);
    MainWindow window;
    centre(window);
    window.show();
    ASSERT_TRUE(waitForActive(&window));
    ASSERT_TRUE(waitFor([&window] { return window.frameGeometry() != window.geometry(); }));
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    EXPECT_TRUE(available.contains(frame))
        << frame.x() << "," << frame.y() << " " << frame.width() << " x " << frame.height()
        << " in " << available.width() << " x " << available.height();
    const auto& status = *window.findChild<StatusLine*>();
    EXPECT_TRUE(available.contains(QRect(status.mapToGlobal(QPoint()), status.size())));
    EXPECT_GE(window.width(), 780);
    EXPECT_GE(window.height(), 460);
}

} // namespace
