#include "inspection/profiles/ProfileReader.h"
#include "inspection/profiles/ProfileWritingJob.h"
#include "tests/pages/profiles/ProfilesPageFixture.h"
#include "tests/support/FullDisk.h"
#include "tests/support/WaitFor.h"

#include <QCheckBox>
#include <QMessageBox>

#include <unistd.h>

namespace {

TEST_F(ProfilesPageTest, WritesThroughTheWideFamily)
{
    m_file.write("[Net]\nMask=255\n");
    open();
    request(QStringLiteral("Net"), QStringLiteral("Query"), QStringLiteral("a=b"), wide);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(ProfileReader(m_file.path()).wide(QStringLiteral("Net"), QStringLiteral("Query")),
              QStringLiteral("a=b"));
    EXPECT_EQ(model("readings").rowCount(), 2);
}

TEST_F(ProfilesPageTest, AsksBeforeANarrowWriteLosesLines)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(changedLines(),
              QStringList({"−comment|; by hand", "−replaced|Host=one", "−two “=”|Query=a=b",
                           "−blank|", "−|[Net]", "−|Mask=255", "+|Mask=1"}));
    EXPECT_EQ(sentence("form"), QString());
    question()->reject();
    EXPECT_EQ(m_file.bytes(), text);
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
}

TEST_F(ProfilesPageTest, AsksBeforeAWideWriteChangesOtherLines)
{
    constexpr char hand[] = "[Main]\r\nPath=C:\\Windows\\System32\r\nA=1\r\nSection Key=1\r\n";
    m_file.write(hand);
    open();
    request(QStringLiteral("Main"), QStringLiteral("A"), QStringLiteral("2"), wide);
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(m_file.bytes(), hand);
    EXPECT_EQ(changedLines(), QStringList({"−line end|[Main]", "−escape|Path=C:\\Windows\\System32",
                                           "−|A=1", "−|Section Key=1", "+|[Main]", "+|A=2",
                                           "+|Path=C:indowsystem32", "+|Section%20Key=1"}));
    EXPECT_EQ(sentence("form"), QStringLiteral("The line ends change: CRLF 4, then LF 4."));
    question()->reject();
    EXPECT_EQ(m_file.bytes(), hand);
    EXPECT_EQ(status(), QStringLiteral("Nothing written."));
}

TEST_F(ProfilesPageTest, SaysThatThereIsNoRoomToTryAChange)
{
    m_file.write("[Net]\nMask=255\n");
    open();
    for (const rlim_t room : {4, 15}) { // for nothing, or for the copy and no more
        m_probe.page().setStatus({});
        const FullDisk full(room);
        request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("12345"), narrow);
        ASSERT_TRUE(m_probe.settle());
        EXPECT_TRUE(status().startsWith("Nothing written. The change is tried on a copy first, "
                                        "which could not be written in "))
            << room << ": " << status().toStdString();
        EXPECT_FALSE(status().contains("Unknown error")) << status().toStdString();
    }
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=255\n");
}

TEST_F(ProfilesPageTest, CancelIsTheDefaultOfTheQuestion)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    ASSERT_NE(question(), nullptr);
    const auto buttons = question()->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons)
        EXPECT_EQ(button->isDefault(), button->text() == QStringLiteral("Cancel"));
    QTest::keyClick(question()->focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(question(), nullptr);
    EXPECT_EQ(m_file.bytes(), text);
}

TEST_F(ProfilesPageTest, NamesTheLinesWhoseBytesAWriteDestroys)
{
    constexpr char gbk[] = "[S]\na=1\n\xbd\xda=\xce\xc4\n";
    for (const int family : {wide, narrow}) {
        m_file.write(gbk);
        open();
        request(QStringLiteral("S"), QStringLiteral("a"), QStringLiteral("2"), family);
        ASSERT_NE(question(), nullptr);
        EXPECT_EQ(sentence("destroyed"),
                  QStringLiteral("These lines are not in the file's encoding, "
                                 "and their bytes would be lost: 3."));
        EXPECT_EQ(sentence("form"),
                  QStringLiteral(
                      "The encoding changes: not UTF-8 (lines: 1, the first is 3), then UTF-8."));
        EXPECT_TRUE(changedLines().contains(QStringLiteral("−not text|\\xBD\\xDA=\\xCE\\xC4")));
        question()->reject();
        EXPECT_EQ(m_file.bytes(), gbk);
    }
}

TEST_F(ProfilesPageTest, AsksBeforeAWideWriteCutsATail)
{
    constexpr char tails[] = "[S] ; s\nTail=1 ; why\nW=a;b\nQ=\"a;b\"\nL=a, b\n";
    m_file.write(tails);
    open();
    request(QStringLiteral("S"), QStringLiteral("x"), QStringLiteral("1"), wide);
    ASSERT_NE(question(), nullptr);
    const QStringList lines = changedLines();
    for (const char* line :
         {"−cut at “;”|[S] ; s", "−cut at “;”|Tail=1 ; why", "−cut at “;”|W=a;b", "+|W=a"})
        EXPECT_TRUE(lines.contains(QString::fromUtf8(line))) << line;
    question()->reject();
    EXPECT_EQ(m_file.bytes(), tails);
    request(QStringLiteral("S"), QStringLiteral("x"), QStringLiteral("1"), wide);
    accept();
    EXPECT_EQ(m_file.bytes(), "[S]\nL=a, b\nQ=\"a;b\"\nTail=1\nW=a\nx=1\n");
}

TEST_F(ProfilesPageTest, WritesNothingWhereTheFamilyReadsTheValueAlready)
{
    m_file.write("[Net]\nMask=255\n");
    open();
    const QDateTime stamp = m_file.stamp();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("255"), wide);
    EXPECT_EQ(status(), QStringLiteral("Nothing written: the family reads this value already."));
    EXPECT_EQ(m_file.stamp(), stamp);
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
}

// The field shows "C:indowsystem32", which is what would be written.
TEST_F(ProfilesPageTest, WritesNothingWhereAMisreadValueIsLeftAsItIs)
{
    constexpr char misread[] = "[S]\nPath=C:\\Windows\\System32\na=1, 2\n";
    m_file.write(misread);
    open();
    for (const int reading : {0, 1}) {
        m_probe.control<QTableView>("readings").selectRow(reading);
        m_probe.click("write");
        ASSERT_TRUE(m_probe.settle());
        EXPECT_EQ(question(), nullptr);
        EXPECT_EQ(status(),
                  QStringLiteral("Nothing written: the family reads this value already."));
        EXPECT_EQ(m_file.bytes(), misread);
    }
}

TEST_F(ProfilesPageTest, KeepsAValueOfAnyLength)
{
    const QByteArray bytes = "[S]\na=" + QByteArray(40000, 'x') + '\n';
    m_file.write(bytes);
    open();
    m_probe.control<QTableView>("readings").selectRow(0);
    ASSERT_TRUE(waitFor([this] { return !m_probe.text("value").isEmpty(); }));
    EXPECT_EQ(m_probe.text("value").size(), 40000);
    m_probe.click("write");
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_file.bytes(), bytes);
}

TEST_F(ProfilesPageTest, AFileThatIsDeletedUnderTheQuestionIsAskedFor)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    QFile::remove(m_file.path());
    accept();
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(QStringLiteral("has been deleted since it was read")));
    box->button(QMessageBox::Cancel)->click();
    EXPECT_EQ(status(), QStringLiteral("Nothing written."));
    EXPECT_FALSE(QFile::exists(m_file.path()));
}

TEST_F(ProfilesPageTest, AsksAgainWhereTheFileHasBeenChangedMeanwhile)
{
    constexpr char changed[] = "[Net]\nMask=255\nnew line\n";
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    m_file.write(changed);
    accept();
    ASSERT_NE(question(), nullptr);
    EXPECT_TRUE(status().startsWith(QStringLiteral("The file has been changed meanwhile")));
    EXPECT_EQ(m_file.bytes(), changed);
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
    EXPECT_EQ(changedLines(), QStringList({"−|Mask=255", "−no “=”|new line", "+|Mask=1"}));
    accept();
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=1\n");
    EXPECT_EQ(ProfileFixture::bytesOf(m_file.path() + QStringLiteral(".bak")), changed);
}

TEST_F(ProfilesPageTest, DoesNotAskAgainWhereNothingIsLostAnyMore)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    m_file.write("[Net]\nMask=255\n");
    accept();
    EXPECT_EQ(question(), nullptr);
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=1\n");
}

struct Rewriting
{
    const char* name;
    const char* bytes;
    bool isAsked;
    const char* form;
};

class ProfileRewritingTest : public ProfilesPageTest, public testing::WithParamInterface<Rewriting>
{
};

TEST_P(ProfileRewritingTest, IsToldBeforeANarrowWrite)
{
    m_file.write(GetParam().bytes);
    open();
    request(QStringLiteral("B"), QStringLiteral("x"), QStringLiteral("9"), narrow);
    ASSERT_EQ(question() != nullptr, GetParam().isAsked);
    if (question()) {
        EXPECT_EQ(sentence("form"), QLatin1String(GetParam().form));
        question()->reject();
        EXPECT_EQ(m_file.bytes(), GetParam().bytes);
    }
    ASSERT_TRUE(m_probe.settle());
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileRewritingTest,
    testing::Values(
        Rewriting{"All", "[B]\nx = 1\n\n[A]\ny=2\n", true, ""},
        Rewriting{"BlankLines", "\n[B]\n \nx=1\n", true, ""},
        Rewriting{"Sections", "[B]\nx=1\n[A]\ny=2\n", true, ""},
        Rewriting{"Keys", "[A]\ny=2\nx=1\n", true, ""},
        Rewriting{"Spaces", "[A]\nx= 1\n", true, ""},
        Rewriting{"LineEnds", "[A]\r\nx=1\r\n", true, "The line ends change: CRLF 2, then LF 4."},
        Rewriting{"OpenEnd", "[A]\nx=1", true, "The last line gets a line end."},
        Rewriting{"Mark", "\xef\xbb\xbf[A]\nx=1\n", true, "The byte order mark goes."},
        Rewriting{"Encoding", "[A]\nx=\xe4\n", true,
                  "The encoding changes: not UTF-8 (lines: 1, the first is 2), then UTF-8."},
        Rewriting{"None", "[A]\nx=1\ny=2\n[B]\nz=3\n", false, ""}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ProfilesPageTest, WritesThroughTheNarrowFamilyAfterABackup)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    accept();
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=1\n");
    EXPECT_EQ(ProfileFixture::bytesOf(m_file.path() + QStringLiteral(".bak")), text);
    EXPECT_TRUE(status().startsWith(QStringLiteral("Written; the backup copy is")));
}

TEST_F(ProfilesPageTest, NeverOverwritesABackup)
{
    open();
    for (const char* value : {"1", "2"}) {
        m_file.write(text);
        request(QStringLiteral("Net"), QStringLiteral("Mask"), QLatin1String(value), narrow);
        accept();
    }
    EXPECT_EQ(files(), QStringList({"profile.ini", "profile.ini.bak", "profile.ini.bak2"}));
}

TEST_F(ProfilesPageTest, MakesNoBackupWhereNoneIsWanted)
{
    open();
    m_probe.control<QCheckBox>("backup").setChecked(false);
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    accept();
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
}

TEST_F(ProfilesPageTest, CreatesAMissingFile)
{
    open(m_file.folder() + QStringLiteral("/new.ini"));
    EXPECT_TRUE(status().startsWith(QStringLiteral("There is no such file")));
    request(QStringLiteral("S"), QStringLiteral("k"), QStringLiteral("v"), narrow);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(ProfileFixture::bytesOf(m_file.folder() + QStringLiteral("/new.ini")), "[S]\nk=v\n");
}

TEST_F(ProfilesPageTest, RefusesToWriteWithoutAFile)
{
    request(QStringLiteral("S"), QStringLiteral("k"), QStringLiteral("v"), wide);
    EXPECT_EQ(status(), QStringLiteral("Open a file first."));
}

// In a folder in which nothing can be created.
class ProfileInLockedFolderTest : public ProfilesPageTest
{
protected:
    void SetUp() override
    {
        if (geteuid() == 0)
            GTEST_SKIP() << "may write to every folder";
        m_file.write("[Net]\nMask=255\n");
        ASSERT_TRUE(QFile::setPermissions(m_file.folder(), QFile::ReadOwner | QFile::ExeOwner));
    }
    void TearDown() override
    {
        QFile::setPermissions(m_file.folder(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

TEST_F(ProfileInLockedFolderTest, TheWideFamilyWritesNothing)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), wide);
    EXPECT_TRUE(status().endsWith(QStringLiteral("cannot be written."))) << status().toStdString();
    ProfileWritingJob writing(m_file.path(), {ProfileFamily::Wide, QStringLiteral("Net"),
                                              QStringLiteral("Mask"), QStringLiteral("1")});
    while (writing.step())
        ;
    EXPECT_FALSE(writing.isReadBack());
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=255\n");
}

TEST_F(ProfileInLockedFolderTest, TheNarrowFamilyWritesWithoutABackupAlone)
{
    open();
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    EXPECT_EQ(status(), QStringLiteral("Nothing written: the backup copy could not be made."));
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=255\n");
    m_probe.control<QCheckBox>("backup").setChecked(false);
    request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), narrow);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_file.bytes(), "[Net]\nMask=1\n");
}

TEST_F(ProfilesPageTest, AFileThatCannotBeReadIsNotTakenForAnEmptyOne)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "may read every file";
    open();
    ASSERT_TRUE(QFile::setPermissions(m_file.path(), QFile::WriteOwner));
    for (const int family : {wide, narrow}) {
        request(QStringLiteral("Net"), QStringLiteral("Mask"), QStringLiteral("1"), family);
        EXPECT_TRUE(status().endsWith(QStringLiteral("cannot be written.")))
            << status().toStdString();
    }
    QFile::setPermissions(m_file.path(), QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_EQ(m_file.bytes(), text);
}

struct Refusal
{
    const char* name;
    const char* section;
    const char* key;
    const char* value;
    int family;
};

class ProfileRefusalTest : public ProfilesPageTest, public testing::WithParamInterface<Refusal>
{
};

TEST_P(ProfileRefusalTest, LeavesTheFileAlone)
{
    open();
    const Refusal& refusal = GetParam();
    const QString before = status();
    request(QString::fromUtf8(refusal.section), QString::fromUtf8(refusal.key),
            QString::fromUtf8(refusal.value), refusal.family);
    EXPECT_EQ(question(), nullptr);
    EXPECT_NE(status(), before);
    EXPECT_EQ(m_file.bytes(), text);
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, ProfileRefusalTest,
    testing::Values(Refusal{"NoKey", "S", "", "v", 0}, Refusal{"NoNarrowSection", "", "k", "v", 1},
                    Refusal{"EqualsInNarrowValue", "S", "k", "a=b", 1},
                    Refusal{"EqualsInNarrowKey", "S", "a=b", "v", 1},
                    Refusal{"SpaceAtNarrowValue", "S", "k", " v", 1},
                    Refusal{"SpaceAtNarrowKey", "S", "k ", "v", 1},
                    Refusal{"BracketAtNarrowKey", "S", "[k", "v", 1},
                    Refusal{"BeyondTheBasicPlane", "S", "k", "\xf0\x9f\x98\x80", 0}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
