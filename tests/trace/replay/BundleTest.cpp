#include "tests/trace/replay/ReplayTest.h"
#include "trace/replay/ReplaySource.h"

namespace replay {
namespace {

using Made = MadeRecording;

class BundleTest : public ReplayTest
{
protected:
    BundleTest()
    {
        QDir(path(".")).mkpath(QStringLiteral("bundle/profiles"));
        QDir(path(".")).mkpath(QStringLiteral("bundle/directories"));
        write("bundle/store.ini", "[A]\nN=1$42\n");
        write("bundle/profiles/1", "[S]\nk=v\n");
        write("bundle/directories/1.json",
              "{\"entries\":[{\"name\":\"One.txt\",\"directory\":false,\"size\":5000000000,"
              "\"modified\":1000000000},"
              "{\"name\":\"two\",\"directory\":true,\"size\":0,\"modified\":1}]}");
        write(
            "bundle/bundle.json",
            "{\"quaysideBundle\":1,\"store\":{\"path\":\"/home/x/s.conf\",\"file\":\"store.ini\"},"
            "\"profiles\":[{\"path\":\"/home/x/a.ini\",\"file\":\"profiles/1\"},"
            "{\"path\":\"/home/x/b.ini\",\"absent\":true}],"
            "\"directories\":[{\"path\":\"/home/x/files\",\"file\":\"directories/1.json\"}],"
            "\"left\":[]}");
    }

    ReplayReport replayBundle(const QByteArray& recording)
    {
        write("bundle/recording.trace", recording);
        ReplaySource source(path("bundle"));
        EXPECT_TRUE(source.open()) << source.error().toStdString();
        const auto folder = source.makeFolder();
        return replay(source.file(), *folder);
    }

    static Made::Call profile(const QByteArray& file, const QByteArray& value)
    {
        return {
            "profile", "GetPrivateProfileStringA",
            "{\"section\":{\"text\":\"S\"},\"key\":{\"text\":\"k\"},\"fallback\":null,\"buffer\":{"
            "\"pointer\":\"0x7\"},\"size\":16,\"file\":{\"text\":\"" +
                file + "\"}}",
            QByteArray::number(value.size()), "{\"buffer\":{\"text\":\"" + value + "\"}}"};
    }
    static Made::Call attributes(const QByteArray& path, const QByteArray& flags)
    {
        return {"directory", "GetFileAttributesW", "{\"path\":{\"text\":\"" + path + "\"}}",
                "{\"flags\":" + flags + ",\"names\":[]}"};
    }
};

TEST_F(BundleTest, BringsStoreAndProfiles)
{
    const ReplayReport report = replayBundle(Made()
                                                 .add(Made::open("HKEY_CURRENT_USER", "A", "0x5"))
                                                 .add(Made::query("0x5", "N", "2a000000"))
                                                 .add(profile("/home/x/a.ini", "v"))
                                                 .add(profile("/home/x/b.ini", ""))
                                                 .bytes());
    EXPECT_EQ(differences(report), "");
    EXPECT_EQ(report.performed, 4);
}

TEST_F(BundleTest, SaysWhatDiffersWhereItKnows)
{
    EXPECT_EQ(differences(replayBundle(Made().add(profile("/home/x/b.ini", "v")).bytes())),
              "1 (result): 1 -> 0\n1 buffer: \"v\" -> \"\"\n");
    EXPECT_EQ(replayBundle(Made().add(profile("/home/y/b.ini", "v")).bytes()).skippedCount(), 1);
}

TEST_F(BundleTest, LaysOutTheFilesOfListedFolders)
{
    const Made::Call search = {
        "directory", "findFirstFile",
        "{\"pattern\":{\"text\":\"/home/x/files/*\"},\"data\":{\"pointer\":\"0x1\"}}",
        "{\"handle\":\"0x55\"}",
        "{\"data\":{\"dwFileAttributes\":{\"flags\":128,\"names\":[\"FILE_ATTRIBUTE_NORMAL\"]},"
        "\"cFileName\":{\"text\":\"One.txt\"},\"ftCreationTime.low\":1,\"ftCreationTime.high\":0,"
        "\"ftLastAccessTime.low\":1,\"ftLastAccessTime.high\":0,\"ftLastWriteTime.low\":1,"
        "\"ftLastWriteTime.high\":0,\"nFileSizeHigh\":1,\"nFileSizeLow\":705032704}}"};
    const ReplayReport report = replayBundle(Made()
                                                 .add(search)
                                                 .add(attributes("/home/x/files/two", "144"))
                                                 .add(attributes("/home/x/files/three", "128"))
                                                 .bytes());
    EXPECT_EQ(differences(report), "");
    EXPECT_EQ(report.performed, 3);
    EXPECT_EQ(
        differences(replayBundle(Made().add(attributes("/home/x/files/three", "144")).bytes())),
        "1 (result): 0x90 -> FILE_ATTRIBUTE_NORMAL\n");
}

TEST_F(BundleTest, IsTakenAsAnArchiveToo)
{
    write("bundle/recording.trace", Made().add(profile("/home/x/a.ini", "v")).bytes());
    trace::BundleArchive archive(path("a.qtrace"));
    ASSERT_TRUE(archive.pack(path("bundle"))) << archive.error().toStdString();
    ReplaySource source(path("a.qtrace"));
    ASSERT_TRUE(source.open()) << source.error().toStdString();
    const auto folder = source.makeFolder();
    const ReplayReport report = replay(source.file(), *folder);
    EXPECT_EQ(differences(report), "");
    EXPECT_EQ(report.performed, 1);
    EXPECT_EQ(ReplaySource::findIn(path(".")), QStringList({path("./a.qtrace"), path("./bundle")}));
}

TEST_F(BundleTest, IsRefusedWhereItsIndexIsWrong)
{
    write("bundle/recording.trace", Made::header());
    for (const char* const wrong : {"{", "{\"quaysideBundle\":2}", "[]"}) {
        write("bundle/bundle.json", wrong);
        ReplaySource source(path("bundle"));
        EXPECT_FALSE(source.open());
        EXPECT_FALSE(source.error().isEmpty());
    }
}

TEST_F(BundleTest, IsFoundInAFolderBesideRecordings)
{
    write("a.trace", Made::header());
    write("other.txt", "");
    EXPECT_EQ(ReplaySource::findIn(path(".")), QStringList({path("./a.trace"), path("./bundle")}));
}

TEST(ReplayFolder, LeadsNoPathOutOfIt)
{
    const ReplayFolder folder(QStringLiteral("/home/x"));
    const QString root = folder.directory().chopped(7);
    EXPECT_EQ(folder.toReplay(QStringLiteral("/etc/passwd")), root + "/etc/passwd");
    EXPECT_EQ(folder.toReplay(QStringLiteral("/../../etc/*")), root + "/etc/*");
    EXPECT_EQ(folder.toReplay(QStringLiteral("../../../../etc/a")), root + "/etc/a");
    EXPECT_EQ(folder.toReplay(QStringLiteral("../y/a")), root + "/home/y/a");
    EXPECT_EQ(folder.toReplay(QStringLiteral("./a")), "./a");
    EXPECT_EQ(folder.toRecorded(root + "/home/x"), "/home/x");
    EXPECT_EQ(folder.toRecorded(QStringLiteral("/home/x")), "/home/x");
}

} // namespace
} // namespace replay
