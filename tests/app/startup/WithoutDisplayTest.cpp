// The script that shows the application's window where there is no display.

#include "tests/app/startup/Application.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <gtest/gtest.h>

namespace {

constexpr int timeout = 120000;

// A build folder of the test's own: the picture lands in it.
class WithoutDisplay : public testing::Test
{
protected:
    void SetUp() override
    {
        const QFileInfo executable(Application::executable());
        ASSERT_TRUE(QFile::link(executable.path(), build.filePath("run")));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("DISPLAY");
        script.setProcessEnvironment(environment);
        script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }

    // Asked to end, the script still ends its display.
    void TearDown() override
    {
        script.terminate();
        script.waitForFinished(5000);
    }

    QTemporaryDir build;
    QProcess script;
};

TEST_F(WithoutDisplay, SavesAPictureOfTheWindow)
{
    script.start(QUAYSIDE_WITHOUT_DISPLAY, {build.path()});
    ASSERT_TRUE(script.waitForFinished(timeout));
    EXPECT_EQ(QProcess::NormalExit, script.exitStatus());
    EXPECT_EQ(0, script.exitCode());
    const QString output = QString::fromUtf8(script.readAllStandardOutput()).trimmed();
    const QString picture = build.filePath("window.png");
    EXPECT_EQ(picture, output.section('\n', -1));
    const QImage image(picture);
    ASSERT_FALSE(image.isNull());
    QImage oneColour = image;
    oneColour.fill(image.pixelColor(0, 0));
    EXPECT_NE(oneColour, image);
}

} // namespace
