// The tree that installation leaves, seen by one who compiles against it and by one who starts it.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(300000));
    const QString output = QString::fromUtf8(process.readAll());
    EXPECT_EQ(0, process.exitCode()) << output.toStdString();
    return output;
}

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

    static QTemporaryDir* folder;
};

QTemporaryDir* InstalledTree::folder = nullptr;

TEST_F(InstalledTree, ServesAProgramThatCompilesAgainstIt)
{
    const QString build = folder->filePath("consumer");
    outputOf("cmake", {"-S", QUAYSIDE_CONSUMER_FOLDER, "-B", build, "-G", "Ninja",
                       "-DCMAKE_PREFIX_PATH=" + prefix()});
    outputOf("cmake", {"--build", build});
    EXPECT_EQ("ungWv48Bz-pBQUDeXa4iI7ADYaOWF3qctBD_YfIAFa0 2 40 7\n",
              outputOf(build + "/consumer", {}));
}

TEST_F(InstalledTree, HoldsTheProgramItsCatalogueAndTheStandIn)
{
    const QDir tree(prefix());
    EXPECT_TRUE(tree.exists("bin/quayside"));
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
