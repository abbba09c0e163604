#include "inspection/profiles/ProfileDryRun.h"
#include "inspection/profiles/ProfileLineRemoval.h"
#include "tests/inspection/profiles/ProfileFixture.h"
#include "tests/support/FullDisk.h"

#include <QDir>

namespace {

using Action = ProfileChange::Action;

ProfileChange setting(ProfileFamily family, const char* section, const char* key, const char* value)
{
    return {family, QString::fromUtf8(section), QString::fromUtf8(key), QString::fromUtf8(value)};
}

ProfileChange deletion(ProfileFamily family, Action action, const char* section,
                       const char* key = "")
{
    return {family, QLatin1String(section), QLatin1String(key), QString(), action};
}

// A change tried on a file, which stays as it is.
class Trial
{
public:
    Trial(const QByteArray& bytes, const ProfileChange& change) : m_dryRun(written(bytes), change)
    {
        while (m_dryRun.step())
            ;
        EXPECT_EQ(m_file.bytes(), bytes);
        EXPECT_EQ(QDir(m_file.folder()).entryList(QDir::Files), QStringList("profile.ini"));
    }
    const ProfileDryRun& result() const { return m_dryRun; }
    const ProfileDifference& difference() const { return *m_dryRun.difference(); }
    std::string after() const { return difference().lines().after().bytes().toStdString(); }

private:
    QString written(const QByteArray& bytes) const
    {
        m_file.write(bytes);
        return m_file.path();
    }

    ProfileFixture m_file;
    ProfileDryRun m_dryRun;
};

struct Row
{
    const char* name;
    ProfileFamily family;
    const char* bytes;
    bool isAskedFor; ///< of setting the key in S to 1
    const char* key = "a";
};

class ProfileDryRunTest : public testing::TestWithParam<Row>
{
};

TEST_P(ProfileDryRunTest, TellsWhetherMoreThanTheAskedLineChanges)
{
    const Trial trial(GetParam().bytes, setting(GetParam().family, "S", GetParam().key, "1"));
    ASSERT_TRUE(trial.result().isReadBack());
    EXPECT_EQ(trial.difference().isAskedFor(), GetParam().isAskedFor) << trial.after();
}

constexpr ProfileFamily wide = ProfileFamily::Wide;
constexpr ProfileFamily narrow = ProfileFamily::Narrow;

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileDryRunTest,
    testing::Values(Row{"NarrowInPlace", narrow, "[S]\na=0\nb=0\n", true},
                    Row{"NarrowNewKey", narrow, "[S]\nb=0\n", true},
                    Row{"NarrowNewSection", narrow, "[R]\nb=0\n[T]\nb=0\n", true},
                    Row{"NarrowComment", narrow, "[S]\na=0\n; why\n", false},
                    Row{"NarrowBlankLine", narrow, "[S]\n\na=0\n", false},
                    Row{"NarrowOrder", narrow, "[S]\nb=0\na=0\n", false},
                    Row{"NarrowSpaces", narrow, "[S]\na=0\nb= 0\n", false},
                    Row{"NarrowReturns", narrow, "[S]\r\na=0\r\n", false},
                    Row{"NarrowOpenEnd", narrow, "[S]\na=0\nb=0", false},
                    Row{"NarrowMark", narrow, "\xef\xbb\xbf[S]\na=0\n", false},
                    Row{"NarrowLatin1", narrow, "[S]\na=0\nb=\xe4\n", false},
                    Row{"NarrowLatin1Value", narrow, "[S]\na=\xe4\n", false},
                    Row{"NarrowLatin1Key", narrow, "[S]\n\xe4=0\n", false, "\xef\xbf\xbd"},
                    Row{"NarrowSpacesAround", narrow, "[S]\na = 0\n", true},
                    Row{"NarrowReplacedKey", narrow, "[S]\na=0\na=2\n", false},
                    Row{"WideInPlace", wide, "[S]\na=0\nb=0\n", true},
                    Row{"WideNewKey", wide, "[S]\nb=0\n", true},
                    Row{"WideNewSection", wide, "[R]\nb=0\n", true},
                    Row{"WideContinued", wide, "[S]\na=0\\\n2\nb=0\n", true},
                    Row{"WideEscapes", wide, "[S]\na=0\nPath=C:\\Windows\\System32\n", false},
                    Row{"WideNames", wide, "[S]\na=0\nmy key=1\n", false},
                    Row{"WideBlankInKey", wide, "[S]\nmy key=0\n", false, "my key"},
                    Row{"WideEscapedKey", wide, "[S]\nmy%20key=0\n", true, "my key"},
                    Row{"WideTail", wide, "[S]\na=0 ; why\n", false},
                    Row{"WideReturns", wide, "[S]\r\na=0\r\n", false},
                    Row{"WideLatin1", wide, "[S]\na=0\nb=\xe4\n", false},
                    Row{"WideComment", wide, "; why\n[S]\na=0\n", false},
                    Row{"Missing", wide, "", true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ProfileDryRun, FindsNoDifferenceWhereTheValueIsThereAlready)
{
    const Trial trial("[S]\na=1\n", setting(narrow, "S", "a", "1"));
    EXPECT_TRUE(trial.difference().lines().hunks().empty());
}

TEST(ProfileDryRun, TellsThatTheFamilyReadsTheValueAlready)
{
    const auto isRead = [](const char* bytes, const char* key, const char* value) {
        return Trial(bytes, setting(wide, "S", key, value)).result().isReadAlready();
    };
    EXPECT_TRUE(isRead("[S]\na=1, 2\n", "a", ""));
    EXPECT_TRUE(isRead("[S]\nP=C:\\Windows\\System32\n", "P", "C:indowsystem32"));
    EXPECT_TRUE(isRead("[S]\na=1\n", "a", "1"));
    EXPECT_FALSE(isRead("[S]\na=1\n", "a", "2"));
    EXPECT_FALSE(isRead("[S]\na=1\n", "b", ""));
}

TEST(ProfileDryRun, NamesTheLinesWhoseBytesGo)
{
    const QByteArray bytes = "[S]\na=0\n\xbd\xda=\xce\xc4\nb=\xc3\xa4\nc=\xe4\n";
    for (const ProfileFamily family : {wide, narrow}) {
        const Trial trial(bytes, setting(family, "S", "a", "1"));
        EXPECT_EQ(trial.difference().destroyedLines(), std::vector<int>({3, 5}));
    }
}

TEST(ProfileDryRun, TellsMovedLinesFromThoseThatAreGone)
{
    using Fate = ProfileDifference::Fate;
    const Trial trial("[S]\nz=0\ny=0\n; why\nb=0\r\na=0\n", setting(narrow, "S", "a", "1"));
    EXPECT_EQ(trial.after(), "[S]\na=1\nb=0\ny=0\nz=0\n");
    EXPECT_NE(trial.difference().fate(1), trial.difference().fate(2)); // one of them stays
    EXPECT_EQ(trial.difference().fate(3), Fate::Gone);
    EXPECT_EQ(trial.difference().fate(4), Fate::EndChanged);
    EXPECT_EQ(trial.difference().fate(5), Fate::Gone);
}

TEST(ProfileDryRun, HasNoLimitOfSize)
{
    QByteArray bytes = "[S]\n";
    for (int i = 0; bytes.size() < 500000; ++i)
        bytes += "key" + QByteArray::number(i) + "=some value\n"; // not in order
    for (const ProfileFamily family : {wide, narrow}) {
        const Trial trial(bytes, setting(family, "S", "key1", "1"));
        ASSERT_TRUE(trial.result().isReadBack());
        EXPECT_FALSE(trial.difference().isAskedFor());
        EXPECT_EQ(trial.difference().lines().before().count(),
                  trial.difference().lines().after().count());
    }
}

TEST(ProfileDryRun, TellsWhatTheFamilyReadBefore)
{
    for (const ProfileFamily family : {wide, narrow}) {
        EXPECT_EQ(Trial("[S]\na=0\n", setting(family, "S", "a", "1")).result().former(), "0");
        const QString empty = Trial("[S]\na=\n", setting(family, "S", "a", "1")).result().former();
        EXPECT_TRUE(empty.isEmpty() && !empty.isNull());
        EXPECT_TRUE(Trial("[S]\nb=\n", setting(family, "S", "a", "1")).result().former().isNull());
    }
}

TEST(ProfileDryRun, EndsWhereTheValueIsNotReadBack)
{
    const Trial trial("[S]\na=0\n", setting(narrow, "S", "a", "1=2"));
    EXPECT_FALSE(trial.result().isReadBack());
    EXPECT_EQ(trial.result().difference(), nullptr);
}

TEST(ProfileDryRun, DeletesTheLinesOfAKeyAndNoOthers)
{
    const QByteArray bytes = "; why\n[R]\na=0\n\n[S]\r\na=1\na = 2\nb=\xe4\n";
    for (const ProfileFamily family : {wide, narrow}) {
        const Trial trial(bytes, deletion(family, Action::DeleteKey, "S", "a"));
        ASSERT_TRUE(trial.result().isReadBack());
        EXPECT_EQ(trial.after(), "; why\n[R]\na=0\n\n[S]\r\nb=\xe4\n");
    }
}

TEST(ProfileDryRun, DeletesASectionUpToTheNextHeader)
{
    const QByteArray bytes = "[R]\na=0\n[S]\n; why\na=1\n[T]\nb=2\n[S]\nc=3\n";
    for (const ProfileFamily family : {wide, narrow}) {
        const Trial trial(bytes, deletion(family, Action::DeleteSection, "S"));
        ASSERT_TRUE(trial.result().isReadBack());
        EXPECT_EQ(trial.after(), "[R]\na=0\n[T]\nb=2\n");
    }
}

TEST(ProfileDryRun, DeletesTheContinuationOfALineWithIt)
{
    const Trial trial("[S]\na=1\\\n2\nb=3\n", deletion(wide, Action::DeleteKey, "S", "a"));
    EXPECT_EQ(trial.after(), "[S]\nb=3\n");
}

TEST(ProfileDryRun, KeepsTheByteOrderMarkOfWhatItDeletes)
{
    const Trial trial("\xef\xbb\xbf[S]\na=1\n[T]\nb=1\n",
                      deletion(narrow, Action::DeleteSection, "S"));
    EXPECT_EQ(trial.after(), "\xef\xbb\xbf[T]\nb=1\n");
}

TEST(ProfileDryRun, TellsThatThereIsNoRoomForACopy)
{
    const ProfileFixture file;
    file.write("[S]\na=1\n");
    const FullDisk full;
    ProfileDryRun dryRun(file.path(), {narrow, "S", "a", "2"});
    while (dryRun.step()) {
    }
    EXPECT_FALSE(dryRun.copyFault().isEmpty());
    EXPECT_FALSE(dryRun.isReadBack());
}

TEST(ProfileDryRun, TellsThatThereIsNoRoomForTheChange)
{
    const ProfileFixture file;
    file.write("[S]\na=1\n");
    const FullDisk full(10); // the copy, and not a byte more
    ProfileDryRun dryRun(file.path(), {narrow, "S", "a", "a longer text"});
    while (dryRun.step()) {
    }
    EXPECT_FALSE(dryRun.copyFault().isEmpty());
    EXPECT_FALSE(dryRun.isReadBack());
}

TEST(ProfileDryRun, DeletesNothingThatTheFamilyDoesNotFind)
{
    for (const ProfileFamily family : {wide, narrow}) {
        EXPECT_FALSE(Trial("[S]\na=1\n", deletion(family, Action::DeleteKey, "S", "b"))
                         .result()
                         .isReadBack());
        EXPECT_FALSE(Trial("[S]\na=1\n", deletion(family, Action::DeleteSection, "T"))
                         .result()
                         .isReadBack());
    }
}

} // namespace
