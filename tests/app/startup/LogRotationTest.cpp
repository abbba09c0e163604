#include "tests/app/startup/Application.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

constexpr qint64 largest = 4LL * 1024 * 1024;

// The log of the real program, which finds one of its earlier runs.
class LogRotation : public testing::Test
{
protected:
    LogRotation()
    {
        QDir(m_application.folder()).mkpath("state/quayside");
        m_application.setEnvironment("XDG_STATE_HOME", m_application.folder() + "/state");
    }

    QString path(const QString& suffix = {}) const
    {
        return m_application.folder() + "/state/quayside/quayside.log" + suffix;
    }
    static void write(const QString& path, char content, qint64 size)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(QByteArray(static_cast<int>(size), content));
    }
    static QByteArray start(const QString& path)
    {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.read(4) : "none";
    }

    Application m_application;
};

TEST_F(LogRotation, AppendsToALogOfFourMegabytes)
{
    write(path(), 'a', largest);
    ASSERT_TRUE(m_application.run());
    EXPECT_GT(QFileInfo(path()).size(), largest);
    EXPECT_EQ(start(path()), "aaaa");
    EXPECT_FALSE(QFile::exists(path(".1")));
}

TEST_F(LogRotation, PutsALargerLogAsideAndDropsTheOneBefore)
{
    write(path(), 'a', largest + 1);
    write(path(".1"), 'b', 10);
    ASSERT_TRUE(m_application.run());
    EXPECT_EQ(QFileInfo(path(".1")).size(), largest + 1);
    EXPECT_EQ(start(path(".1")), "aaaa");
    EXPECT_GT(QFileInfo(path()).size(), 0);
    EXPECT_LT(QFileInfo(path()).size(), 10000);
    EXPECT_NE(start(path()), "aaaa");
    EXPECT_EQ(QDir(m_application.folder() + "/state/quayside").entryList(QDir::Files).size(), 2);
}

} // namespace
