#include "pages/files/PathPanel.h"

#include "platform/PlatformDirectoryManagerImp.h"
#include "tests/support/WaitFor.h"

#include <QDir>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Counts the questions that list a directory.
class RecordingDirectoryManager final : public PlatformDirectoryManagerImp
{
public:
    int isFileExist(const wchar_t* path, CStdStr<wchar_t>& realPath) override
    {
        asked += QString::fromWCharArray(path);
        return PlatformDirectoryManagerImp::isFileExist(path, realPath);
    }

    QStringList asked;
};

class PathPanelTest : public testing::Test
{
protected:
    QLineEdit& field(const char* name)
    {
        return *m_panel.findChild<QLineEdit*>(QLatin1String(name));
    }

    RecordingDirectoryManager m_service;
    PathPanel m_panel{m_service};
};

TEST_F(PathPanelTest, AsksOnceWhetherATypedPathExists)
{
    QTest::keyClicks(&field("path"), QStringLiteral("/none/x.tx"));
    EXPECT_EQ(m_service.asked, QStringList());
    EXPECT_TRUE(waitFor([this] { return field("exists").text() == QLatin1String("No"); }));
    EXPECT_EQ(m_service.asked, QStringList(QStringLiteral("/none/x.tx")));
}

TEST_F(PathPanelTest, ShowsNoOlderAnswerWhileAPathIsTyped)
{
    field("path").setText(QDir::rootPath());
    m_panel.ask();
    EXPECT_EQ(field("exists").text(), QStringLiteral("Yes: /"));
    QTest::keyClicks(&field("path"), QStringLiteral("none.txt"));
    EXPECT_EQ(field("exists").text(), QString());
    EXPECT_EQ(field("extension").text(), QStringLiteral(".txt"));
}

} // namespace
