// The tree that installation leaves, seen by one who compiles against it and by one who starts it.

#include "tests/cmake/InstalledTree.h"
#include "window/PageCatalogue.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

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

class InstalledPackage : public InstalledTree
{
protected:
    static QString headerFolder() { return prefix() + "/" QUAYSIDE_INCLUDE_FOLDER "/quayside"; }
    static QString consumerFolder() { return folder->filePath("consumer"); }

    // Builds a target of the programs that know the tree alone.
    static bool consumerBuilds(const QString& target)
    {
        built(QUAYSIDE_CONSUMER_FOLDER, "consumer", {"--target", target},
              {"-DCONSUMER_VERSION=" QUAYSIDE_VERSION,
               "-DCONSUMER_HEADERS=" + publicHeaders.join(';')});
        return !HasFailure();
    }
};

TEST_F(InstalledPackage, HoldsThePublicHeadersAndNoOthers)
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
TEST_F(InstalledPackage, HasHeadersThatEachCompileAlone)
{
    EXPECT_TRUE(consumerBuilds("headers"));
}

TEST_F(InstalledPackage, ServesAProgramThatUsesTheServices)
{
    ASSERT_TRUE(consumerBuilds("consumer"));
    EXPECT_EQ("ungWv48Bz-pBQUDeXa4iI7ADYaOWF3qctBD_YfIAFa0 2 40 7\n",
              outputOf(consumerFolder() + "/consumer", {}));
}

class InstalledLibrary : public InstalledPackage, public testing::WithParamInterface<const char*>
{
};

TEST_P(InstalledLibrary, LinksByItself)
{
    EXPECT_TRUE(consumerBuilds(GetParam() + QStringLiteral("_alone")));
}

INSTANTIATE_TEST_SUITE_P(Libraries, InstalledLibrary,
                         testing::Values("support", "platform", "crypto", "widgets", "app",
                                         "window"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(InstalledPackage, IsFoundByItsComponents)
{
    const auto found = [](const QString& components) {
        return resultOf("cmake", {"-S", QUAYSIDE_CONSUMER_FOLDER, "-B", folder->filePath("parts"),
                                  "-G", "Ninja", "-DCMAKE_PREFIX_PATH=" + prefix(),
                                  "-DCONSUMER_VERSION=" QUAYSIDE_VERSION,
                                  "-DCONSUMER_COMPONENTS=" + components});
    };
    const ChildResult known = found("crypto;host;headers");
    EXPECT_EQ(0, known.status) << known.output.toStdString();
    const ChildResult unknown = found("crypto;network");
    EXPECT_NE(0, unknown.status);
    EXPECT_TRUE(unknown.output.contains("There is no component \"network\"."))
        << unknown.output.toStdString();
}

// A host library of somebody who has the headers alone.
class InstalledHeaders : public InstalledTree
{
protected:
    static void SetUpTestSuite()
    {
        InstalledTree::SetUpTestSuite();
        built(QUAYSIDE_AUTHOR_FOLDER, "author");
    }
    static QString libraryFolder() { return folder->filePath("author"); }
};

TEST_F(InstalledHeaders, ServeAHostLibraryThatPassesStrings)
{
    EXPECT_EQ("Global 1\n",
              outputOf("env", {"LD_LIBRARY_PATH=" + libraryFolder(), prefix() + "/bin/quayside"}));
}

TEST_F(InstalledHeaders, LeaveDefinitionsAsStrongAsTheAuthorMakesThem)
{
    const QString symbols =
        outputOf(QUAYSIDE_NM, {"-DC", "--defined-only", libraryFolder() + "/libKdPlatformBase.so"});
    for (const char* name :
         {"InitOrbxConfig(wchar_t const*)", "CreateConfigReg()", "GetCurrentOrbxLanguageId()"})
        EXPECT_TRUE(symbols.contains(QStringLiteral(" T ") + name)) << symbols.toStdString();
}

TEST_F(InstalledPackage, ServesAProgramThatShowsTheWindow)
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
    EXPECT_TRUE(tree.exists("share/man/man1/quayside.1"));
    EXPECT_TRUE(tree.exists("share/man/man1/quaysidectl.1"));
    EXPECT_TRUE(tree.exists("share/man/zh_CN/man1/quayside.1"));
    EXPECT_TRUE(tree.exists("share/icons/hicolor/512x512/apps/quayside.png"));
    EXPECT_TRUE(tree.exists("share/metainfo/quayside.metainfo.xml"));
    EXPECT_TRUE(tree.exists("share/bash-completion/completions/quaysidectl"));
    EXPECT_TRUE(tree.exists("share/quayside/translations/qt_zh_CN.qm"));
    EXPECT_TRUE(tree.exists(QUAYSIDE_LIBRARY_FOLDER "/libKdPlatformBase.so"));
}

TEST_F(InstalledTree, CommandFindsTheRecorder)
{
    const QString recording = folder->filePath("recording");
    const ChildResult result =
        resultOf(prefix() + "/bin/quaysidectl", {"trace", "record", "-o", recording, "true"});
    EXPECT_EQ(0, result.status) << result.output.toStdString();
    EXPECT_TRUE(QFile::exists(prefix() + "/" QUAYSIDE_LIBRARY_FOLDER "/libquayside-trace.so"));
}

// The application looks for Qt's catalogue below its working directory.
TEST_F(InstalledTree, DesktopEntryStartsWhereQtsCatalogueIs)
{
    QFile entry(prefix() + "/share/applications/quayside.desktop");
    ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
    const QRegularExpression row("^Path=(.*)$", QRegularExpression::MultilineOption);
    const QString path = row.match(QString::fromUtf8(entry.readAll())).captured(1);
    EXPECT_EQ(prefix() + "/share/quayside", path);
    EXPECT_TRUE(QFile::exists(path + "/translations/qt_zh_CN.qm"));
}

TEST_F(InstalledTree, ProgramsHaveTheVersionOfThePackage)
{
    EXPECT_EQ("quaysidectl " QUAYSIDE_VERSION "\n",
              outputOf(prefix() + "/bin/quaysidectl", {"--version"}));
    EXPECT_EQ(QUAYSIDE_VERSION "\n", outputOf("env", {"PKG_CONFIG_PATH=" + prefix() + "/" +
                                                          QUAYSIDE_LIBRARY_FOLDER "/pkgconfig",
                                                      "pkg-config", "--modversion", "quayside"}));
}

TEST_F(InstalledTree, SaysWhatIsInstalled)
{
    const QString output =
        outputOf("cmake", {"--install", QUAYSIDE_BUILD_FOLDER, "--prefix", prefix()});
    EXPECT_TRUE(output.contains("Installing Quayside " QUAYSIDE_VERSION ", built as "))
        << output.left(500).toStdString();
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
