// The sources as a folder of somebody else's project.

#include "tests/cmake/ChildOutput.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// Building all of Quayside once more would take minutes: one program is built whole, of another
// only what compiles against the headers.
class SourceTree : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        outputOf("cmake", {"-S", QUAYSIDE_CONSUMER_FOLDER, "-B", folder->path(), "-G", "Ninja",
                           "-DCONSUMER_QUAYSIDE_FOLDER=" QUAYSIDE_SOURCE_FOLDER});
    }
    static void TearDownTestSuite() { delete folder; }

    static void build(const QString& target)
    {
        outputOf("cmake", {"--build", folder->path(), "--target", target});
    }

    static QTemporaryDir* folder;
};

QTemporaryDir* SourceTree::folder = nullptr;

TEST_F(SourceTree, ServesAProgramThatDecrypts)
{
    build("crypto_consumer");
    ASSERT_FALSE(HasFailure());
    EXPECT_EQ("plain text\n", outputOf(folder->filePath("crypto_consumer"), {}));
}

TEST_F(SourceTree, HasLibrariesThatLinkByThemselves)
{
    for (const char* library : {"support", "crypto", "widgets"})
        build(QStringLiteral("%1_alone").arg(library));
}

TEST_F(SourceTree, HasHeadersForAProgramThatUsesTheServices)
{
    build("CMakeFiles/consumer.dir/main.cpp.o");
}

TEST_F(SourceTree, BringsNoTestsExamplesOrStrictness)
{
    QFile cache(folder->filePath("CMakeCache.txt"));
    ASSERT_TRUE(cache.open(QIODevice::ReadOnly));
    const QByteArray settings = cache.readAll();
    for (const char* option : {"BUILD_TESTS", "BUILD_EXAMPLES", "WARNINGS_AS_ERRORS"})
        EXPECT_TRUE(settings.contains(QByteArray("QUAYSIDE_") + option + ":BOOL=OFF")) << option;
}

TEST(BuildOptions, AWrongPathOfAHostLibraryIsRefused)
{
    const QTemporaryDir folder;
    const ChildResult result =
        resultOf("cmake", {"-S", QUAYSIDE_SOURCE_FOLDER, "-B", folder.path(), "-G", "Ninja",
                           "-DQUAYSIDE_HOST_LIBRARIES=/usr/lib/none/libKdPlatformBase.so"});
    EXPECT_NE(0, result.status);
    EXPECT_TRUE(
        result.output.simplified().contains("\"/usr/lib/none/libKdPlatformBase.so\", which is not"))
        << result.output.toStdString();
}

TEST_F(SourceTree, InstallsNothing)
{
    const QString prefix = folder->filePath("prefix");
    outputOf("cmake", {"--install", folder->path(), "--prefix", prefix});
    EXPECT_FALSE(QDir(prefix).exists());
}

} // namespace
