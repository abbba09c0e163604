#include "app/pages/profiles/ProfileDocument.h"
#include "app/pages/profiles/ProfileReader.h"
#include "app/pages/profiles/ProfileWriting.h"
#include "tests/app/pages/ProfileFixture.h"
#include "tests/app/pages/WindowProbe.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

constexpr char text[] = "; by hand\n[Net]\nHost=one\nQuery=a=b\n\n[Net]\nMask=255\n";

class ProfilesPageTest : public testing::Test
{
protected:
    void SetUp() override { m_file.write(text); }

    void open(const QString& path) const
    {
        m_probe.type("file", path);
        QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
        ASSERT_TRUE(m_probe.settle());
    }
    void open() const { open(m_file.path()); }

    const QAbstractItemModel& model(const char* view) const
    {
        return *m_probe.control<QTableView>(view).model();
    }
    // A row's cells.
    QStringList row(const char* view, int number) const
    {
        QStringList cells;
        for (int column = 0; column < model(view).columnCount(); ++column)
            cells << model(view).index(number, column).data().toString();
        return cells;
    }

    void request(const QString& section, const QString& key, const QString& value, int family) const
    {
        m_probe.type("section", section);
        m_probe.type("key", key);
        m_probe.type("value", value);
        m_probe.control<QComboBox>("family").setCurrentIndex(family);
        m_probe.click("write");
        EXPECT_TRUE(m_probe.settle());
    }
    // The dialog that asks before lines are lost.
    static QDialog* question() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }
    void accept() const
    {
        ASSERT_NE(question(), nullptr);
        question()->findChild<QPushButton*>(QStringLiteral("writeAllTheSame"))->click();
        ASSERT_TRUE(m_probe.settle());
    }
    QStringList files() const { return QDir(m_file.folder()).entryList(QDir::Files, QDir::Name); }
    QString status() const { return m_probe.page().statusText(); }

    static constexpr int wide = 0;
    static constexpr int narrow = 1;

    ProfileFixture m_file;
    WindowProbe m_probe{"profiles"};
};

TEST_F(ProfilesPageTest, ShowsEachLineWithItsMargin)
{
    open();
    ASSERT_EQ(model("lines").rowCount(), 7);
    EXPECT_EQ(row("lines", 0), QStringList({"1", "comment", "comment", "; by hand"}));
    EXPECT_EQ(row("lines", 1), QStringList({"2", "replaced", "header", "[Net]"}));
    EXPECT_EQ(row("lines", 2), QStringList({"3", "replaced", "kept", "Host=one"}));
    EXPECT_EQ(row("lines", 3), QStringList({"4", "two “=”", "kept", "Query=a=b"}));
    EXPECT_EQ(row("lines", 4), QStringList({"5", "blank", "blank", ""}));
    EXPECT_EQ(row("lines", 6), QStringList({"7", "kept", "kept", "Mask=255"}));
}

TEST_F(ProfilesPageTest, ShowsBothReadingsWithTheirDifferences)
{
    open();
    ASSERT_EQ(model("readings").rowCount(), 3);
    EXPECT_EQ(row("readings", 0), QStringList({"Net", "Host", "one", "≠", "(empty)"}));
    EXPECT_EQ(row("readings", 1), QStringList({"Net", "Query", "a=b", "≠", "(empty)"}));
    EXPECT_EQ(row("readings", 2), QStringList({"Net", "Mask", "255", "=", "255"}));
    EXPECT_EQ(status(), QStringLiteral("3 values, 2 of them read differently."));
}

TEST_F(ProfilesPageTest, TellsWhatTheWideFamilyDoesNotFind)
{
    m_file.write("[General]\nSpeed=9600\n");
    open();
    ASSERT_EQ(model("readings").rowCount(), 2);
    EXPECT_EQ(row("readings", 0), QStringList({"(no name)", "Speed", "9600", "≠", "(empty)"}));
    EXPECT_EQ(row("readings", 1), QStringList({"General", "Speed", "(not found)", "≠", "9600"}));
}

TEST_F(ProfilesPageTest, ExplainsTheChosenLineAndChoosesItsReading)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(3);
    EXPECT_TRUE(status().startsWith(QStringLiteral("Line 4. Narrow: Dropped: more than one")));
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Query"));
}

TEST_F(ProfilesPageTest, TellsWhyAListReadsEmpty)
{
    m_file.write("[S]\nServers=alpha, beta\n");
    open();
    EXPECT_EQ(row("lines", 1), QStringList({"2", "kept", "list", "Servers=alpha, beta"}));
    EXPECT_EQ(row("readings", 0), QStringList({"S", "Servers", "(empty)", "≠", "alpha, beta"}));
    m_probe.control<QTableView>("lines").selectRow(1);
    EXPECT_TRUE(status().endsWith(QStringLiteral(
        "Wide: Kept: the family finds this entry. A comma without quotes makes it a list, which "
        "reads as empty.")))
        << status().toStdString();
}

TEST_F(ProfilesPageTest, TellsWhyAValueIsCut)
{
    m_file.write("[S]\nTail=1 ; why\n");
    open();
    EXPECT_EQ(row("lines", 1), QStringList({"2", "kept", "cut at “;”", "Tail=1 ; why"}));
    EXPECT_EQ(row("readings", 0), QStringList({"S", "Tail", "1", "≠", "1 ; why"}));
}

TEST_F(ProfilesPageTest, ShowsWhatEscapesMakeOfAValue)
{
    m_file.write("[S]\nPath=C:\\new\\table\n");
    open();
    EXPECT_EQ(row("lines", 1), QStringList({"2", "kept", "escape", "Path=C:\\new\\table"}));
    EXPECT_EQ(row("readings", 0), QStringList({"S", "Path", "C:↵ew⇥able", "≠", "C:\\new\\table"}));
}

TEST_F(ProfilesPageTest, ShortensWhatNoCellHasRoomFor)
{
    const QByteArray fits = QByteArray(496, 'x');
    m_file.write("[S]\nfit=" + fits + "\nlong=" + QByteArray(100000, 'x') + "\n");
    open();
    EXPECT_EQ(row("lines", 1).last(), QLatin1String("fit=" + fits));
    EXPECT_EQ(row("lines", 2).last(), QStringLiteral("long=") + QString(495, 'x') + "…");
    EXPECT_EQ(row("readings", 1)[2], QString(500, 'x') + "…");
}

TEST_F(ProfilesPageTest, RefreshReadsTheFileAgain)
{
    open();
    m_file.write("[Net]\nMask=254\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(row("readings", 0), QStringList({"Net", "Mask", "254", "=", "254"}));
}

TEST_F(ProfilesPageTest, RefreshKeepsTheChosenLineAndReading)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(3);
    m_probe.control<QTableView>("readings").selectRow(2);
    m_file.write("[New]\na=1\n[Net]\nQuery=a=b\nMask=254\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.control<QTableView>("lines").currentIndex().row(), 3);
    EXPECT_EQ(m_probe.control<QTableView>("readings").currentIndex().row(), 2);
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Mask"));
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("254"));
    EXPECT_EQ(status(), QStringLiteral("3 values, 1 of them read differently."));
}

TEST_F(ProfilesPageTest, RefreshKeepsWhatIsBeingTyped)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(2);
    m_probe.control<QLineEdit>("value").selectAll();
    QTest::keyClicks(&m_probe.control<QLineEdit>("value"), QStringLiteral("7"));
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(m_probe.control<QTableView>("readings").currentIndex().row(), 2);
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("7"));
}

TEST_F(ProfilesPageTest, RefreshLetsGoOfAReadingThatIsGone)
{
    open();
    m_probe.control<QTableView>("lines").selectRow(6);
    m_file.write("[Other]\n\n\n\n\n\nk=v\n");
    m_probe.page().refresh();
    ASSERT_TRUE(m_probe.settle());
    for (const char* view : {"lines", "readings"})
        EXPECT_FALSE(m_probe.control<QTableView>(view).currentIndex().isValid()) << view;
    for (const char* field : {"section", "key", "value"})
        EXPECT_EQ(m_probe.text(field), QString()) << field;
}

TEST_F(ProfilesPageTest, AnotherFileLetsGoOfTheReading)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(2);
    open(m_file.folder() + QStringLiteral("/new.ini"));
    EXPECT_EQ(m_probe.text("section"), QString());
}

TEST_F(ProfilesPageTest, ChoosesWhatWasWritten)
{
    m_file.write("[Net]\nMask=255\n");
    open();
    m_probe.control<QTableView>("readings").selectRow(0);
    request(QStringLiteral("Net"), QStringLiteral("Query"), QStringLiteral("a=b"), wide);
    EXPECT_EQ(m_probe.control<QTableView>("readings").currentIndex().row(), 1);
    EXPECT_EQ(row("readings", 1)[1], QStringLiteral("Query"));
    EXPECT_EQ(m_probe.text("key"), QStringLiteral("Query"));
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("a=b"));
    EXPECT_TRUE(status().startsWith(QStringLiteral("Written;"))) << status().toStdString();
}

TEST_F(ProfilesPageTest, OpensADroppedFile)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_file.path())});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_probe.page(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&m_probe.page(), &drop);
    ASSERT_TRUE(m_probe.settle());
    EXPECT_EQ(model("lines").rowCount(), 7);
}

TEST_F(ProfilesPageTest, TakesNoDropOfAnAddress)
{
    QMimeData data;
    data.setUrls({QUrl(QStringLiteral("https://example.org/a.ini"))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&m_probe.page(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(ProfilesPageTest, RefusesAFolderAndKeepsTheOpenFile)
{
    open();
    open(m_file.folder());
    EXPECT_TRUE(status().endsWith(QStringLiteral("is a folder.")));
    EXPECT_EQ(model("lines").rowCount(), 7);
    EXPECT_EQ(m_probe.text("file"), m_file.path());
}

TEST_F(ProfilesPageTest, RefusesAFileInAMissingFolder)
{
    open(m_file.folder() + QStringLiteral("/none/a.ini"));
    EXPECT_TRUE(status().startsWith(QStringLiteral("There is no folder")));
}

TEST_F(ProfilesPageTest, RefusesAFileThatIsTooLarge)
{
    constexpr int largest = 128 * 1024;
    m_file.write(QByteArray(largest, '\n'));
    EXPECT_EQ(ProfileDocument::fault(m_file.path()), QString());
    m_file.write(QByteArray(largest + 1, '\n'));
    open();
    EXPECT_TRUE(
        status().endsWith(QStringLiteral("is larger than 128 KiB, the most that is opened here.")));
    EXPECT_EQ(model("lines").rowCount(), 0);
}

TEST_F(ProfilesPageTest, CancelKeepsWhatWasReadSoFar)
{
    QByteArray large = "[S]\n";
    for (int i = 0; i < 5000; ++i)
        large += "key" + QByteArray::number(i) + "=value\n";
    m_file.write(large);
    m_probe.type("file", m_file.path());
    QTest::keyClick(&m_probe.control<QWidget>("file"), Qt::Key_Return);
    // The first slice may do no more than take the file apart.
    ASSERT_TRUE(QTest::qWaitFor([this] { return model("readings").rowCount() > 0; }));
    ASSERT_TRUE(m_probe.page().isBusy());
    m_probe.page().cancelJob();
    EXPECT_TRUE(status().startsWith(QStringLiteral("Stopped.")));
    EXPECT_GT(model("readings").rowCount(), 0);
    EXPECT_LT(model("readings").rowCount(), 5000);
}

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
    const auto* list = question()->findChild<QListWidget*>(QStringLiteral("lostLines"));
    ASSERT_EQ(list->count(), 4);
    EXPECT_EQ(list->item(3)->text(), QStringLiteral("4 (two “=”): Query=a=b"));
    EXPECT_EQ(question()->findChild<QLabel*>(QStringLiteral("changes"))->text(),
              QStringLiteral("Blank lines lost: 1."));
    question()->reject();
    EXPECT_EQ(m_file.bytes(), text);
    EXPECT_EQ(files(), QStringList({"profile.ini"}));
}

TEST_F(ProfilesPageTest, AsksBeforeAWideWriteCutsATail)
{
    constexpr char tails[] = "[S] ; s\nTail=1 ; why\nW=a;b\nQ=\"a;b\"\nL=a, b\n";
    m_file.write(tails);
    open();
    request(QStringLiteral("S"), QStringLiteral("x"), QStringLiteral("1"), wide);
    ASSERT_NE(question(), nullptr);
    const auto* list = question()->findChild<QListWidget*>(QStringLiteral("lostLines"));
    ASSERT_EQ(list->count(), 3);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("1 (cut at “;”): [S] ; s"));
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("2 (cut at “;”): Tail=1 ; why"));
    EXPECT_EQ(list->item(2)->text(), QStringLiteral("3 (cut at “;”): W=a;b"));
    question()->reject();
    EXPECT_EQ(m_file.bytes(), tails);
    request(QStringLiteral("S"), QStringLiteral("x"), QStringLiteral("1"), wide);
    accept();
    EXPECT_EQ(m_file.bytes(), "[S]\nL=a, b\nQ=\"a;b\"\nTail=1\nW=a\nx=1\n");
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
    const auto* list = question()->findChild<QListWidget*>(QStringLiteral("lostLines"));
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("3 (no “=”): new line"));
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
    const char* changes; ///< empty: nobody is asked
};

class ProfileRewritingTest : public ProfilesPageTest, public testing::WithParamInterface<Rewriting>
{
};

TEST_P(ProfileRewritingTest, IsToldBeforeANarrowWrite)
{
    m_file.write(GetParam().bytes);
    open();
    request(QStringLiteral("B"), QStringLiteral("x"), QStringLiteral("1"), narrow);
    ASSERT_EQ(question() != nullptr, *GetParam().changes != 0);
    if (question()) {
        EXPECT_EQ(question()->findChild<QLabel*>(QStringLiteral("changes"))->text(),
                  QLatin1String(GetParam().changes));
        EXPECT_EQ(question()->findChild<QListWidget*>(QStringLiteral("lostLines")), nullptr);
        question()->reject();
        EXPECT_EQ(m_file.bytes(), GetParam().bytes);
    }
    ASSERT_TRUE(m_probe.settle());
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileRewritingTest,
    testing::Values(
        Rewriting{
            "All", "[B]\nx = 1\n\n[A]\ny=2\n",
            "Blank lines lost: 1. The order of sections and keys changes. Spaces and line ends "
            "are normalised."},
        Rewriting{"BlankLines", "\n[B]\n \nx=1\n", "Blank lines lost: 2."},
        Rewriting{"Sections", "[B]\nx=1\n[A]\ny=2\n", "The order of sections and keys changes."},
        Rewriting{"Keys", "[A]\ny=2\nx=1\n", "The order of sections and keys changes."},
        Rewriting{"Spaces", "[A]\nx= 1\n", "Spaces and line ends are normalised."},
        Rewriting{"LineEnds", "[A]\r\nx=1\r\n", "Spaces and line ends are normalised."},
        Rewriting{"OpenEnd", "[A]\nx=1", "Spaces and line ends are normalised."},
        Rewriting{"Mark", "\xef\xbb\xbf[A]\nx=1\n", "Spaces and line ends are normalised."},
        Rewriting{"Encoding", "[A]\nx=\xe4\n", "The encoding becomes UTF-8."},
        Rewriting{"None", "[A]\nx=1\ny=2\n[B]\nz=3\n", ""}),
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

TEST_F(ProfilesPageTest, F2PutsTheKeyboardOnTheValue)
{
    open();
    auto& readings = m_probe.control<QTableView>("readings");
    readings.setFocus();
    readings.selectRow(2);
    QTest::keyClick(&readings, Qt::Key_F2);
    EXPECT_TRUE(m_probe.control<QWidget>("value").hasFocus());
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("255"));
}

TEST_F(ProfilesPageTest, ShowsTheValueOfTheChosenFamily)
{
    open();
    m_probe.control<QTableView>("readings").selectRow(1);
    EXPECT_EQ(m_probe.text("value"), QStringLiteral("a=b"));
    m_probe.control<QComboBox>("family").setCurrentIndex(narrow);
    EXPECT_EQ(m_probe.text("value"), QString());
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
    ProfileWriting writing(m_file.path(), {ProfileFamily::Wide, QStringLiteral("Net"),
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
