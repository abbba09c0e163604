#include "inspection/profiles/ProfileLoadingJob.h"
#include "pages/profiles/ProfileReadingsPane.h"
#include "tests/pages/profiles/ProfilesPageFixture.h"
#include "tests/support/WaitFor.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

#include <memory>
#include <utility>

namespace {

// What others do to the file while the page is in view.
class ProfileLiveTest : public ProfilesPageTest
{
protected:
    QTableView& table(const char* view) const { return m_probe.control<QTableView>(view); }
    bool rowBecomes(const char* view, int number, const QStringList& cells) const
    {
        return waitFor(
            [&] { return model(view).rowCount() > number && row(view, number) == cells; });
    }
    bool statusBecomes(const QString& part) const
    {
        return waitFor([&] { return status().contains(part); });
    }
};

TEST_F(ProfileLiveTest, ShowsWhatSomebodyElseWrites)
{
    open();
    m_file.write("[Net]\nMask=1\n");
    EXPECT_TRUE(rowBecomes("readings", 0, {"Net", "Mask", "1", "=", "1"}));
    EXPECT_EQ(model("lines").rowCount(), 2);
    EXPECT_TRUE(statusBecomes(QStringLiteral("changed by somebody else")));
}

TEST_F(ProfileLiveTest, ShowsAFileThatReplacesIt)
{
    open();
    QFile other(m_file.folder() + QStringLiteral("/other.ini"));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("[Other]\nk=v\n");
    other.close();
    ASSERT_EQ(rename(qPrintable(other.fileName()), qPrintable(m_file.path())), 0);
    EXPECT_TRUE(rowBecomes("readings", 0, {"Other", "k", "v", "=", "v"}));
}

TEST_F(ProfileLiveTest, SaysThatTheFileHasBeenDeletedAndShowsItWhenItIsBack)
{
    open();
    ASSERT_TRUE(QFile::remove(m_file.path()));
    EXPECT_TRUE(statusBecomes(QStringLiteral("has been deleted")));
    EXPECT_EQ(model("lines").rowCount(), 0);
    m_file.write("[Net]\nMask=1\n");
    EXPECT_TRUE(rowBecomes("readings", 0, {"Net", "Mask", "1", "=", "1"}));
}

TEST_F(ProfileLiveTest, SaysThatAFolderLiesThereNowAndKeepsTheLines)
{
    open();
    ASSERT_TRUE(QFile::remove(m_file.path()));
    ASSERT_TRUE(QDir().mkdir(m_file.path()));
    EXPECT_TRUE(statusBecomes(QStringLiteral("is a folder.")));
    EXPECT_EQ(model("lines").rowCount(), 7);
    ASSERT_TRUE(QDir().rmdir(m_file.path()));
}

TEST_F(ProfileLiveTest, ShowsAMissingFileWhenItComes)
{
    ASSERT_TRUE(QFile::remove(m_file.path()));
    open();
    m_file.write("[Net]\nMask=1\n");
    EXPECT_TRUE(rowBecomes("readings", 0, {"Net", "Mask", "1", "=", "1"}));
}

TEST_F(ProfileLiveTest, KeepsWhatIsChosenAndTyped)
{
    open();
    table("readings").selectRow(2);
    table("readings").setFocus();
    QTest::keyClick(&table("readings"), Qt::Key_F2);
    QTest::keyClicks(&m_probe.control<QLineEdit>("value"), QStringLiteral("7"));
    m_probe.type("file", QStringLiteral("/typed"));
    m_file.write("[Net]\nMask=1\n");
    ASSERT_TRUE(rowBecomes("readings", 0, {"Net", "Mask", "1", "=", "1"}));
    EXPECT_TRUE(becomes([this] { return table("readings").currentIndex().row(); }, 0));
    EXPECT_TRUE(becomes([this] { return table("lines").currentIndex().row(); }, 1));
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("7"));
    EXPECT_EQ(m_probe.text("file"), QStringLiteral("/typed"));
    EXPECT_TRUE(m_probe.control<QWidget>("value").hasFocus());
}

TEST_F(ProfileLiveTest, KeepsTheScrollPosition)
{
    QByteArray bytes = "[S]\n";
    for (int i = 0; i < 500; ++i)
        bytes += "key" + QByteArray::number(i) + "=1\n";
    m_file.write(bytes);
    open();
    for (const char* view : {"lines", "readings"})
        table(view).verticalScrollBar()->setValue(100);
    m_file.write(bytes + "last=1\n");
    ASSERT_TRUE(rowBecomes("readings", 500, {"S", "last", "1", "=", "1"}));
    for (const char* view : {"lines", "readings"})
        EXPECT_EQ(table(view).verticalScrollBar()->value(), 100) << view;
}

QByteArray manyKeys(const QByteArray& value, int count = 4000)
{
    QByteArray bytes = "[S]\n";
    for (int i = 0; i < count; ++i)
        bytes += "key" + QByteArray::number(i) + "=" + value + "\n";
    return bytes;
}

TEST_F(ProfileLiveTest, KeepsWhatIsChosenWhileTheFileIsReadAgain)
{
    m_file.write(manyKeys("1"));
    open();
    int chosen = 977;
    int choices = 0;
    bool isShown = false;
    table("readings").selectRow(chosen);
    ASSERT_TRUE(m_probe.settle());
    const auto model = table("readings").model();
    QObject::connect(model, &QAbstractItemModel::modelReset, [&isShown] { isShown = true; });
    QTimer user; // who chooses while the new lines are read
    QObject::connect(&user, &QTimer::timeout, [&] {
        if (!isShown && m_probe.page().isBusy() && ++choices <= 5)
            table("readings").selectRow(chosen = (chosen + 977) % 4000);
    });
    user.start(5);
    m_file.write("; new\n" + manyKeys("2"));
    EXPECT_TRUE(statusBecomes(QStringLiteral("changed by somebody else")));
    EXPECT_TRUE(isShown);
    EXPECT_EQ(table("readings").currentIndex().row(), chosen);
    EXPECT_EQ(table("lines").currentIndex().row(), chosen + 2);
}

TEST_F(ProfileLiveTest, GoesToADifferenceOfTheLinesThatCameMeanwhile)
{
    constexpr int keys = 3000; // too many to be read when the file is opened
    m_file.write(manyKeys("1", keys));
    open();
    m_file.write(manyKeys("1", keys).replace("key2999=1", "key2999=a,b"));
    ProfileLoadingJob loading(m_file.path());
    while (loading.step())
        ;
    m_probe.click("nextDifference");
    ASSERT_TRUE(m_probe.page().isBusy());
    m_probe.page().findChild<ProfileReadingsPane*>()->setDocument(
        std::make_shared<const ProfileDocument>(std::move(loading.document())));
    ASSERT_TRUE(waitForJob(m_probe.page()));
    EXPECT_EQ(table("readings").currentIndex().row(), keys - 1);
    EXPECT_EQ(row("readings", keys - 1).at(3), QStringLiteral("≠"));
}

} // namespace
