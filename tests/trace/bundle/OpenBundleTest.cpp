#include "tests/trace/bundle/BundleTest.h"
#include "trace/bundle/Bundle.h"

namespace trace {

namespace {

class OpenBundleTest : public BundleTest
{
protected:
    void writeBundle() const
    {
        write("from/bundle.json",
              "{\"quaysideBundle\":1,\"store\":{\"path\":\"/s\",\"file\":\"store.ini\"}}");
        write("from/recording.trace", "{}\n");
        write("from/store.ini", "[a]\n");
    }
};

TEST_F(OpenBundleTest, OpensAnArchiveAndCleansUp)
{
    writeBundle();
    ASSERT_TRUE(BundleArchive(path("x.qtrace")).pack(path("from")));
    QString recording;
    {
        Bundle bundle(path("x.qtrace"));
        ASSERT_TRUE(bundle.open()) << bundle.error().toStdString();
        recording = bundle.recording();
        EXPECT_TRUE(QFileInfo(recording).isFile());
        ASSERT_TRUE(bundle.index());
        EXPECT_TRUE(QFileInfo(bundle.pathOf(bundle.index()->store->file)).isFile());
    }
    EXPECT_FALSE(QFileInfo::exists(recording));
}

TEST_F(OpenBundleTest, OpensAFolder)
{
    writeBundle();
    Bundle bundle(path("from"));
    ASSERT_TRUE(bundle.open());
    EXPECT_EQ(bundle.recording(), path("from/recording.trace"));
    EXPECT_EQ(bundle.index()->store->path, "/s");
}

TEST_F(OpenBundleTest, LeavesARecordingAlone)
{
    write("a.trace", "{}\n");
    Bundle bundle(path("a.trace"));
    ASSERT_TRUE(bundle.open());
    EXPECT_EQ(bundle.recording(), path("a.trace"));
    EXPECT_FALSE(bundle.index());
}

TEST_F(OpenBundleTest, TellsWhatIsNoBundle)
{
    Bundle empty(folder("empty"));
    EXPECT_FALSE(empty.open());
    EXPECT_TRUE(empty.error().contains("is no bundle"));
    writeBundle();
    write("from/bundle.json", "{\"quaysideBundle\":3}");
    Bundle later(path("from"));
    EXPECT_FALSE(later.open());
    EXPECT_TRUE(later.error().startsWith(path("from")));
}

} // namespace

} // namespace trace
