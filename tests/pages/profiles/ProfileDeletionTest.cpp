#include "app/ApplicationLog.h"
#include "inspection/profiles/FormerEntries.h"
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

TEST_F(ProfileDeletionTest, OfASectionLogsEachKeyWithItsValue)
{
    for (const int family : {wide, narrow}) {
        m_file.write("[Net]\nHost=one\nMask=255\nPassword=hunter2\nEmpty=\n");
        open();
        choose(family);
        requestDeletion(sectionEntry, "Net", "");
        accept();
        m_probe.page().undoStack().undo();
        ASSERT_TRUE(m_probe.settle());
        const QByteArray log = ProfileFixture::bytesOf(ApplicationLog::path());
        const QByteArray place =
            m_file.path().toUtf8() + (family == wide ? " (wide) [Net]: " : " (narrow) [Net]: ");
        EXPECT_TRUE(log.contains(place + "\"Host\": \"one\" -> absent\n"));
        EXPECT_TRUE(log.contains(place + "\"Mask\": \"255\" -> absent\n"));
        EXPECT_TRUE(log.contains(place + "\"Empty\": \"\" -> absent\n"));
        EXPECT_TRUE(log.contains(place + "\"Password\": (not logged) -> absent\n"));
        EXPECT_TRUE(log.contains("Undone: " + place + "\"Host\": absent -> \"one\"\n"));
    }
}

TEST_F(ProfileDeletionTest, OfALongSectionLogsHowManyKeysAreLeftOut)
{
    QByteArray bytes = "[Long]\n";
    for (int key = 0; key < FormerEntries::most + 5; ++key)
        bytes += "k" + QByteArray::number(key) + "=v\n";
    m_file.write(bytes);
    open();
    requestDeletion(sectionEntry, "Long", "");
    accept();
    const QByteArray log = ProfileFixture::bytesOf(ApplicationLog::path());
    EXPECT_EQ(log.count("[Long]: \"k"), FormerEntries::most);
    EXPECT_TRUE(log.contains(" (wide) [Long]: and 5 more keys\n"));
}

TEST_F(ProfileDeletionTest, TakesOutWhatIsInNoSectionOfTheWideFamily)
{
    m_file.write("; by hand\nbefore=1\n[App]\na=1\n[General]\n; why\nk=v\n[Net]\nHost=one\n");
    open();
    requestDeletion(sectionEntry, "", "");
    ASSERT_NE(question(), nullptr);
    accept();
    EXPECT_EQ(m_file.bytes(), "; by hand\n[App]\na=1\n[Net]\nHost=one\n");
    EXPECT_EQ(m_probe.page().undoStack().undoText(),
              QStringLiteral("Delete [General] from profile.ini"));
}

TEST_F(ProfileDeletionTest, SaysHowToNameWhatIsInNoSection)
{
    m_file.write("[General]\nk=v\n");
    open();
    requestDeletion(sectionEntry, "General", "");
    EXPECT_TRUE(status().endsWith(QStringLiteral("leave the section empty.")));
    EXPECT_EQ(question(), nullptr);
}

TEST_F(ProfileDeletionTest, NamesTheFamilyThatFindsTheLines)
{
    for (const int family : {wide, narrow}) {
        open();
        choose(family);
        requestDeletion(keyEntry, "Net", "Mask");
        ASSERT_NE(question(), nullptr);
        EXPECT_TRUE(sentence("explanation")
                        .startsWith(family == wide
                                        ? QStringLiteral("The wide family finds the key “Mask”")
                                        : QStringLiteral("The narrow family finds the key “Mask”")))
            << sentence("explanation").toStdString();
        question()->reject();
        requestDeletion(sectionEntry, "Net", "");
        EXPECT_TRUE(sentence("explanation").contains(QStringLiteral("finds the section “Net”")));
        question()->reject();
    }
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
