// What an author of host libraries begins with, built against the installed tree and started.

#include "tests/cmake/InstalledTree.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QRegularExpression>

namespace {

constexpr int longestStart = 60000; // milliseconds

class InstalledKit : public InstalledTree
{
protected:
    static QString examples() { return QStringLiteral(QUAYSIDE_SOURCE_FOLDER "/examples"); }

    static QString sampleLibrary() { return built(examples() + "/host-library", "host-library"); }

    // The lines of the library that begin so, up to the one that holds `last`. The application is
    // stopped then.
    QStringList linesOf(const QString& library, const QString& begin, const QString& last,
                        const QStringList& arguments = {}) const
    {
        QProcess application;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_LIBRARY_PATH", library);
        environment.insert("XDG_DATA_HOME", m_data.path());
        application.setProcessEnvironment(environment);
        application.setProcessChannelMode(QProcess::MergedChannels);
        application.start(prefix() + "/bin/quayside", arguments);
        QString output;
        while (!output.contains(last) && application.waitForReadyRead(longestStart))
            output += QString::fromUtf8(application.readAll());
        application.terminate();
        EXPECT_TRUE(application.waitForFinished(longestStart));
        return output.split('\n').filter(QRegularExpression('^' + begin));
    }

private:
    QTemporaryDir m_data; // of the user's
};

TEST_F(InstalledKit, SampleLibraryIsAnsweredAsItsReadmeSays)
{
    QFile readme(examples() + "/host-library/README.md");
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    QStringList told;
    for (const QString& line : QString::fromUtf8(readme.readAll()).split('\n')) {
        if (line.startsWith("    sample: "))
            told += line.trimmed();
    }
    EXPECT_EQ(7, told.size());
    const QStringList lines = linesOf(sampleLibrary(), "sample: ", "strings: ");
    EXPECT_EQ(told.join('\n').toStdString(), lines.join('\n').toStdString());
}

TEST_F(InstalledKit, SampleLibraryKeepsItsCountAndChoosesTheLanguage)
{
    const QString library = sampleLibrary();
    const QString begin = QStringLiteral("sample: (registry|strings)");
    const QStringList first = linesOf(library, begin, "strings: ");
    const QStringList second = linesOf(library, begin, "strings: ", {"/language", "zh-CN"});
    ASSERT_EQ(2, second.size());
    EXPECT_EQ("sample: strings: hello", first.value(1).toStdString());
    EXPECT_EQ("sample: strings: ni hao", second[1].toStdString());
    EXPECT_NE(first[0].toStdString(), second[0].toStdString());
}

TEST_F(InstalledKit, SampleLibraryPassesTheCheck)
{
    const ChildResult result =
        resultOf(prefix() + "/bin/quaysidectl",
                 {"host", "check", sampleLibrary() + "/libKdPlatformBase.so"});
    EXPECT_EQ(0, result.status) << result.output.toStdString();
}

TEST_F(InstalledKit, SamplePageWorksToItsEnd)
{
    const QString program = built(examples() + "/page", "page") + "/sample_page";
    EXPECT_EQ(0, resultOf(program, {"try"}).status);
}

// Word for word what its README says, but for the place of the kit.
TEST_F(InstalledKit, NewLibraryBuildsAndLoads)
{
    const QString sources = folder->filePath("fresh");
    outputOf(prefix() + "/bin/quaysidectl", {"host", "new", sources});
    const QString library = built(sources, "fresh/build");
    EXPECT_EQ("fresh is loaded; the registry has 0 keys",
              linesOf(library, "fresh", " is loaded").join('\n').toStdString());
    EXPECT_EQ(0, resultOf(prefix() + "/bin/quaysidectl",
                          {"host", "check", library + "/libKdPlatformBase.so"})
                     .status);
}

} // namespace
