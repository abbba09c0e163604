// The tree that installation leaves, seen by one who compiles against it and by one who starts it.

#include "tests/cmake/ChildOutput.h"
#include "window/PageCatalogue.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

// The headers that others compile against. A further one is a promise to keep it.
const QStringList publicHeaders = {
    "app/CStdStr.h",
    "app/CommandLine.h",
    "app/Logger.h",
    "app/TextTime.h",
    "crypto/AesEncrypt.h",
    "crypto/Base64Encoder.h",
    "crypto/Encrypt.h",
    "crypto/MD5.h",
    "crypto/Sha256.h",
    "host/HostLibraries.h",
    "platform/IPlatformServices.h",
    "platform/PlatformCursorManagerImp.h",
    "platform/PlatformDirectoryManagerImp.h",
    "platform/PlatformFontManagerImp.h",
    "platform/PlatformMessageManagerImp.h",
    "platform/PlatformProfileManagerImp.h",
    "platform/PlatformRegisterManagerImp.h",
    "platform/PlatformResourceManagerImp.h",
    "platform/PlatformServicesImp.h",
    "platform/PlatformUserInputManagerImp.h",
    "platform/WindowsTypes.h",
    "widgets/ButtonMonitor.h",
    "widgets/QAnimationStackedWidget.h",
    "widgets/QProgressIndicator.h",
    "window/MainWindow.h",
};

class InstalledTree : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        folder = new QTemporaryDir;
        outputOf("cmake", {"--install", QUAYSIDE_BUILD_FOLDER, "--prefix", prefix()});
    }
    static void TearDownTestSuite() { delete folder; }
    static QString prefix() { return folder->filePath("prefix"); }
    static QString headerFolder() { return prefix() + "/" QUAYSIDE_INCLUDE_FOLDER "/quayside"; }
    static QString consumerFolder() { return folder->filePath("consumer"); }

    // Builds a target of the programs that know the tree alone.
    static bool consumerBuilds(const QString& target)
    {
        outputOf("cmake", {"-S", QUAYSIDE_CONSUMER_FOLDER, "-B", consumerFolder(), "-G", "Ninja",
                           "-DCMAKE_PREFIX_PATH=" + prefix(),
                           "-DCONSUMER_HEADERS=" + publicHeaders.join(';')});
        outputOf("cmake", {"--build", consumerFolder(), "--target", target});
        return !HasFailure();
    }

    static QTemporaryDir* folder;
};

QTemporaryDir* InstalledTree::folder = nullptr;

TEST_F(InstalledTree, HoldsThePublicHeadersAndNoOthers)
{
    const QDir headers(headerFolder());
    QStringList found;
    QDirIterator files(headers.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found += headers.relativeFilePath(files.next());
    found.sort();
    EXPECT_EQ(publicHeaders.join("\n").toStdString(), found.join("\n").toStdString());
}

// With nothing but Qt and the tree on the include path, so that a header that is not installed
// cannot be included either.
TEST_F(InstalledTree, HasHeadersThatEachCompileAlone)
{
    EXPECT_TRUE(consumerBuilds("headers"));
}

TEST_F(InstalledTree, ServesAProgramThatUsesTheServices)
{
    ASSERT_TRUE(consumerBuilds("consumer"));
    EXPECT_EQ("ungWv48Bz-pBQUDeXa4iI7ADYaOWF3qctBD_YfIAFa0 2 40 7\n",
              outputOf(consumerFolder() + "/consumer", {}));
}

TEST_F(InstalledTree, ServesAProgramThatShowsTheWindow)
{
    QString names;
    for (const PageEntry& page : pageCatalogue())
        names += page.name + '\n';
    ASSERT_TRUE(consumerBuilds("window_consumer"));
    EXPECT_EQ(names, outputOf(consumerFolder() + "/window_consumer", {}));
}

TEST_F(InstalledTree, HoldsTheProgramItsCatalogueAndTheStandIn)
{
    const QDir tree(prefix());
    EXPECT_TRUE(tree.exists("bin/quayside"));
    EXPECT_TRUE(tree.exists("bin/quaysidectl"));
    EXPECT_TRUE(tree.exists("share/man/man1/quaysidectl.1"));
    EXPECT_TRUE(tree.exists("share/bash-completion/completions/quaysidectl"));
    EXPECT_TRUE(tree.exists("share/quayside/translations/qt_zh_CN.qm"));
    EXPECT_TRUE(tree.exists(QUAYSIDE_LIBRARY_FOLDER "/libKdPlatformBase.so"));
}

TEST_F(InstalledTree, ProgramFindsTheStandInThere)
{
    const QString libraries = outputOf("ldd", {prefix() + "/bin/quayside"});
    const QRegularExpression row(R"(libKdPlatformBase\.so => (\S+) )");
    const QFileInfo found(row.match(libraries).captured(1));
    const QFileInfo installed(prefix() + "/" QUAYSIDE_LIBRARY_FOLDER "/libKdPlatformBase.so");
    EXPECT_EQ(installed.canonicalFilePath(), found.canonicalFilePath()) << libraries.toStdString();
    EXPECT_TRUE(found.exists());
}

} // namespace
