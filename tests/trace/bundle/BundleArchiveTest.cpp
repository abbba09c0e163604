#include "trace/bundle/BundleArchive.h"
#include "tests/trace/bundle/BundleTest.h"

#include <QDirIterator>

#include <archive.h>
#include <archive_entry.h>
#include <stdexcept>
#include <sys/stat.h>

namespace trace {

namespace {

// An entry of an archive as somebody with bad intentions would make it.
struct MadeEntry
{
    const char* name;
    unsigned int type = AE_IFREG;
    QByteArray content = "x";
    const char* target = nullptr;
};

void addEntry(archive* made, const MadeEntry& row)
{
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, row.name);
    archive_entry_set_filetype(entry, row.type);
    archive_entry_set_perm(entry, 0777);
    archive_entry_set_size(entry, row.type == AE_IFREG ? row.content.size() : 0);
    if (row.target)
        archive_entry_set_symlink(entry, row.target);
    EXPECT_EQ(archive_write_header(made, entry), ARCHIVE_OK);
    if (row.type == AE_IFREG)
        archive_write_data(made, row.content.constData(),
                           static_cast<std::size_t>(row.content.size()));
    archive_entry_free(entry);
}

void makeArchive(const QString& path, const std::vector<MadeEntry>& rows)
{
    archive* made = archive_write_new();
    archive_write_set_format_zip(made);
    ASSERT_EQ(archive_write_open_filename(made, QFile::encodeName(path).constData()), ARCHIVE_OK);
    for (const MadeEntry& row : rows)
        addEntry(made, row);
    EXPECT_EQ(archive_write_free(made), ARCHIVE_OK);
}

class BundleArchiveTest : public BundleTest
{
protected:
    // The fault of unpacking such an archive.
    QString faultOf(const std::vector<MadeEntry>& rows) const
    {
        makeArchive(path("made.qtrace"), rows);
        BundleArchive archive(path("made.qtrace"));
        EXPECT_FALSE(archive.unpack(folder("into/deep")));
        return archive.error();
    }

    QStringList filesIn(const char* name) const
    {
        QStringList names;
        QDirIterator files(path(name),
                           QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            names += files.next();
        return names;
    }
};

TEST_F(BundleArchiveTest, GivesBackEveryFileAsItWas)
{
    const QByteArray large(3'000'000, 'z');
    write("from/a", large + QByteArray(1, '\0') + "end");
    write("from/deep/er/b", "");
    EXPECT_TRUE(BundleArchive(path("x.qtrace")).pack(path("from")));
    EXPECT_LT(QFileInfo(path("x.qtrace")).size(), 100'000);
    BundleArchive archive(path("x.qtrace"));
    EXPECT_TRUE(archive.unpack(folder("into"))) << archive.error().toStdString();
    EXPECT_TRUE(read("into/a") == read("from/a"));
    EXPECT_EQ(read("into/deep/er/b"), "");
    EXPECT_EQ(filesIn("into").size(), 4);
}

TEST_F(BundleArchiveTest, IsNoLongerThanWhatIsInIt)
{
    write("from/a", "a");
    EXPECT_TRUE(BundleArchive(path("x.qtrace")).pack(path("from")));
    EXPECT_LT(QFileInfo(path("x.qtrace")).size(), 1000);
}

TEST_F(BundleArchiveTest, IsReadableForItsOwnerAlone)
{
    write("from/a", "a");
    EXPECT_TRUE(BundleArchive(path("x.qtrace")).pack(path("from")));
    struct stat status = {};
    ASSERT_EQ(stat(QFile::encodeName(path("x.qtrace")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    makeArchive(path("made.qtrace"), {{"program"}});
    EXPECT_TRUE(BundleArchive(path("made.qtrace")).unpack(folder("into")));
    ASSERT_EQ(stat(QFile::encodeName(path("into/program")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(BundleArchiveTest, LeavesLinksOut)
{
    write("secret", "s");
    write("from/a", "a");
    ASSERT_TRUE(QFile::link(path("secret"), path("from/link")));
    EXPECT_TRUE(BundleArchive(path("x.qtrace")).pack(path("from")));
    EXPECT_TRUE(BundleArchive(path("x.qtrace")).unpack(folder("into")));
    EXPECT_EQ(filesIn("into"), QStringList(path("into/a")));
}

TEST_F(BundleArchiveTest, KeepsTheFormerFileWhereWritingFails)
{
    write("x.qtrace", "former");
    write("from/a", "a");
    BundleArchive archive(path("x.qtrace"));
    EXPECT_THROW(archive.pack(path("from"), [] { throw std::runtime_error("stopped"); }),
                 std::runtime_error);
    EXPECT_EQ(read("x.qtrace"), "former");
    BundleArchive nowhere(path("none/x.qtrace"));
    EXPECT_FALSE(nowhere.pack(path("from")));
    EXPECT_TRUE(nowhere.error().contains(path("none/x.qtrace")));
}

TEST_F(BundleArchiveTest, RefusesNamesThatLeadOutOfTheFolder)
{
    for (const char* name :
         {"../out", "a/../../out", "/tmp/quayside-out", "a/./b", "a//b", "..", "a\\..\\b"}) {
        const QString fault = faultOf({{name}});
        EXPECT_TRUE(fault.contains("leads out of it")) << name << ": " << fault.toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(path("into/out")));
    EXPECT_FALSE(QFileInfo::exists("/tmp/quayside-out"));
}

TEST_F(BundleArchiveTest, RefusesWhatIsNoFile)
{
    EXPECT_TRUE(faultOf({{"a", AE_IFLNK, "", "/etc/passwd"}, {"a"}}).contains("is no file"));
    makeArchive(path("regular.qtrace"), {{"a"}});
    for (const char* mode : {"\xFF\x21", "\xFF\x61", "\xFF\xC1"}) {
        write("made.qtrace", read("regular.qtrace").replace("\xFF\x81", mode));
        BundleArchive archive(path("made.qtrace"));
        EXPECT_FALSE(archive.unpack(folder("into/deep")));
        EXPECT_TRUE(archive.error().contains("is no file")) << archive.error().toStdString();
    }
    EXPECT_TRUE(filesIn("into/deep").isEmpty());
}

TEST_F(BundleArchiveTest, RefusesTheSameNameTwice)
{
    EXPECT_TRUE(faultOf({{"a", AE_IFREG, "1"}, {"a", AE_IFREG, "2"}}).contains("a: "));
    EXPECT_EQ(read("into/deep/a"), "1");
}

TEST_F(BundleArchiveTest, RefusesWhatGrowsWithoutMeasure)
{
    const QByteArray zeros(16 * 1024 * 1024, '\0');
    std::vector<MadeEntry> rows;
    static const char* const names[] = {"a", "b", "c", "d", "e", "f", "g", "h", "i",
                                        "j", "k", "l", "m", "n", "o", "p", "q"};
    for (const char* name : names)
        rows.push_back({name, AE_IFREG, zeros});
    EXPECT_TRUE(faultOf(rows).contains("200 times as large"));
}

TEST_F(BundleArchiveTest, TellsAnArchiveByItsBeginning)
{
    makeArchive(path("made.qtrace"), {{"a"}});
    write("recording", "{\"quaysideTrace\":1}\n");
    EXPECT_TRUE(BundleArchive::isArchive(path("made.qtrace")));
    EXPECT_FALSE(BundleArchive::isArchive(path("recording")));
    EXPECT_FALSE(BundleArchive::isArchive(path("none")));
    EXPECT_FALSE(BundleArchive::isArchive(folder("folder")));
}

TEST_F(BundleArchiveTest, SurvivesDamageAnywhere)
{
    write("from/a", QByteArray(2000, 'a') + "b");
    write("from/bundle.json", "{}");
    ASSERT_TRUE(BundleArchive(path("x.qtrace")).pack(path("from")));
    const QByteArray whole = read("x.qtrace");
    for (int i = 0; i < whole.size(); ++i) {
        QByteArray damaged = i % 2 == 0 ? whole.left(i) : whole;
        if (i < damaged.size())
            damaged[i] = static_cast<char>(damaged[i] ^ 0x55);
        QFile::remove(path("x.qtrace")); // what is cut and written anew is slow on some disks
        write("x.qtrace", damaged);
        QTemporaryDir into;
        BundleArchive archive(path("x.qtrace"));
        const bool isUnpacked = archive.unpack(into.path());
        EXPECT_EQ(isUnpacked, archive.error().isEmpty()) << i;
    }
}

} // namespace

} // namespace trace
