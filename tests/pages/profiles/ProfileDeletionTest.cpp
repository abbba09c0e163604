#include "app/ApplicationLog.h"
#include "tests/pages/profiles/ProfilesPageFixture.h"

#include <QLineEdit>
#include <QMenu>
#include <QUndoStack>

namespace {

class ProfileDeletionTest : public ProfilesPageTest
{
protected:
    static constexpr char hand[] = "; by hand\n[App]\na=1\n[Net]\nHost=one\n; why\nMask=255\n";

    void SetUp() override { m_file.write(hand); }

    // The entries of the button's menu: the key, the section.
    void requestDeletion(int entry, const char* section, const char* key) const
    {
        m_probe.type("section", QLatin1String(section));
        m_probe.type("key", QLatin1String(key));
        m_probe.control<QPushButton>("delete").menu()->actions().at(entry)->trigger();
        ASSERT_TRUE(m_probe.settle());
    }
    void choose(int family) const { m_probe.control<QComboBox>("family").setCurrentIndex(family); }
    static constexpr int keyEntry = 0;
    static constexpr int sectionEntry = 1;
};

TEST_F(ProfileDeletionTest, TakesTheKeysLineOutThroughEitherFamily)
{
    for (const int family : {wide, narrow}) {
        m_file.write(hand);
        open();
        choose(family);
        requestDeletion(keyEntry, "Net", "Mask");
        ASSERT_NE(question(), nullptr);
        EXPECT_EQ(changedLines(), QStringList({"−|Mask=255"}));
        accept();
        EXPECT_EQ(m_file.bytes(), "; by hand\n[App]\na=1\n[Net]\nHost=one\n; why\n");
        EXPECT_TRUE(status().startsWith(QStringLiteral("Deleted;"))) << status().toStdString();
        EXPECT_EQ(model("readings").rowCount(), 2);
    }
}

TEST_F(ProfileDeletionTest, TakesASectionOut)
{
    open();
    requestDeletion(sectionEntry, "App", "");
    accept();
    EXPECT_EQ(m_file.bytes(), "; by hand\n[Net]\nHost=one\n; why\nMask=255\n");
}

TEST_F(ProfileDeletionTest, IsNothingAfterCancel)
{
    open();
    requestDeletion(sectionEntry, "Net", "");
    question()->reject();
    EXPECT_EQ(status(), QStringLiteral("Nothing deleted."));
    EXPECT_EQ(m_file.bytes(), hand);
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
}

TEST_F(ProfileDeletionTest, CanBeUndone)
{
    open();
    requestDeletion(sectionEntry, "Net", "");
    accept();
    EXPECT_EQ(m_probe.page().undoStack().undoText(),
              QStringLiteral("Delete [Net] from profile.ini"));
    m_probe.page().undoStack().undo();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_file.bytes(), hand);
    const QByteArray log = ProfileFixture::bytesOf(ApplicationLog::path());
    EXPECT_TRUE(log.contains(" (wide) [Net]: \"section\" -> absent\n"));
    EXPECT_TRUE(log.contains(" (wide) [Net]: absent -> \"section\"\n"));
}

TEST_F(ProfileDeletionTest, TheDeleteKeyDeletesTheChosenReading)
{
    open();
    auto& readings = m_probe.control<QTableView>("readings");
    readings.setFocus();
    readings.selectRow(1);
    m_probe.type("key", QStringLiteral("typed"));
    QTest::keyClick(&readings, Qt::Key_Delete);
    ASSERT_TRUE(m_probe.settle());
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(changedLines(), QStringList({"−|Host=one"}));
    question()->reject();
}

TEST_F(ProfileDeletionTest, IsRefusedWhereThereIsNothingToDelete)
{
    open();
    requestDeletion(keyEntry, "Net", "none");
    EXPECT_EQ(status(), QStringLiteral("Nothing deleted: the wide family does not find that."));
    choose(narrow);
    requestDeletion(sectionEntry, "none", "");
    EXPECT_EQ(status(), QStringLiteral("Nothing deleted: the narrow family does not find that."));
    requestDeletion(sectionEntry, "", "k");
    EXPECT_EQ(status(), QStringLiteral("Type a section first."));
    EXPECT_EQ(question(), nullptr);
    EXPECT_EQ(m_file.bytes(), hand);
    open(m_file.folder() + QStringLiteral("/new.ini"));
    requestDeletion(keyEntry, "Net", "none");
    EXPECT_EQ(status(), QStringLiteral("There is no such file: nothing can be deleted from it."));
    EXPECT_FALSE(QFile::exists(m_file.folder() + QStringLiteral("/new.ini")));
}

} // namespace
