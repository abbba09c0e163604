#include "app/CommandLine.h"
#include "platform/PlatformServicesImp.h"
#include "tests/support/RecordingHost.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

// Arguments in the form in which `main` gets them, the program's name before them.
class Arguments
{
public:
    explicit Arguments(std::vector<QByteArray> texts) : m_texts(std::move(texts))
    {
        m_texts.insert(m_texts.begin(), "prog");
        for (QByteArray& text : m_texts)
            m_values.push_back(text.data());
        m_values.push_back(nullptr);
    }

    int count() const { return static_cast<int>(m_texts.size()); }
    char** values() { return m_values.data(); }

private:
    std::vector<QByteArray> m_texts;
    std::vector<char*> m_values;
};

// What a program would do with these arguments, in a working directory of its own.
class CommandLineTest : public testing::Test
{
protected:
    void SetUp() override
    {
        g_recordingHost = RecordingHost();
        QDir::setCurrent(workingDirectory.path());
    }

    void TearDown() override
    {
        QCoreApplication::removeTranslator(&appTranslator);
        QCoreApplication::removeTranslator(&qtTranslator);
        QDir::setCurrent(QDir::rootPath());
    }

    void start(std::vector<QByteArray> texts)
    {
        Arguments arguments(std::move(texts));
        parseCommandLine(arguments.count(), arguments.values(), appTranslator, qtTranslator);
    }

    void bringQtCatalogue() const
    {
        QDir().mkdir(QStringLiteral("translations"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(QUAYSIDE_QT_CATALOGUE),
                                QStringLiteral("translations/qt_zh_CN.qm")));
    }

    static bool applicationIsChinese()
    {
        return QCoreApplication::translate("HostInformation", "English",
                                           "name of the interface's language") ==
               QStringLiteral("简体中文");
    }

    static QString cancel() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }

    QTemporaryDir workingDirectory;
    QTranslator appTranslator;
    QTranslator qtTranslator;
};

struct Options
{
    std::vector<QByteArray> arguments;
    bool chinese;
};

class CommandLineOptions : public CommandLineTest, public testing::WithParamInterface<Options>
{
};

TEST_P(CommandLineOptions, ChooseTheLanguage)
{
    start(GetParam().arguments);
    EXPECT_EQ(GetParam().chinese, applicationIsChinese());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CommandLineOptions,
    testing::Values(Options{{}, false}, Options{{"/language", "zh-CN"}, true},
                    Options{{"/language", "zh-cn"}, false}, Options{{"/language", "ZH-CN"}, false},
                    Options{{"/language", "zh-CN "}, false}, Options{{"/Language", "zh-CN"}, false},
                    Options{{"/language"}, false}, Options{{"/language", "zh-CN", "/x"}, false},
                    Options{{"/x", "y", "/language", "zh-CN"}, true},
                    Options{{"/language", "en", "/language", "zh-CN"}, true},
                    Options{{"/language", "zh-CN", "/language", "en"}, false},
                    Options{{"language", "zh-CN"}, false}, Options{{"-language", "zh-CN"}, false},
                    // The value of a pair is never taken for a key.
                    Options{{"/x", "/language", "zh-CN", "y"}, false},
                    Options{{"/language", "/language"}, false}));

TEST_F(CommandLineTest, HandsTheServicesOverOnceAndFirst)
{
    start({});
    EXPECT_EQ(&g_PlatformServices, g_recordingHost.services);
    EXPECT_EQ(1, g_recordingHost.calls.count(QStringLiteral("setPlatformServices")));
    EXPECT_EQ(QStringLiteral("setPlatformServices"), g_recordingHost.calls.first());
}

TEST_F(CommandLineTest, AsksTheConfigurationLibraryInOrder)
{
    start({"/language", "de"});
    EXPECT_EQ(QStringList({"setPlatformServices", "InitOrbxConfig", "CreateConfigReg",
                           "GetCurrentOrbxLanguageId"}),
              g_recordingHost.calls);
}

TEST_F(CommandLineTest, PassesTheRequestedLanguageOn)
{
    start({"/language", "d\xc3\xa9 \xf0\x9f\x98\x80"});
    EXPECT_EQ(QString::fromUtf8("d\xc3\xa9 \xf0\x9f\x98\x80"), g_recordingHost.requestedLanguage);
}

TEST_F(CommandLineTest, PassesAnEmptyLanguageWhereNoneIsGiven)
{
    g_recordingHost.requestedLanguage = QStringLiteral("untouched");
    start({});
    EXPECT_EQ(QString(), g_recordingHost.requestedLanguage);
}

TEST_F(CommandLineTest, FailingConfigurationIsAskedNothingMore)
{
    g_recordingHost.initResult = 5;
    g_recordingHost.languageId = 2052;
    start({});
    EXPECT_EQ(QStringList({"setPlatformServices", "InitOrbxConfig"}), g_recordingHost.calls);
    EXPECT_FALSE(applicationIsChinese());
}

TEST_F(CommandLineTest, FailingConfigurationLeavesTheOptionInForce)
{
    g_recordingHost.initResult = -1;
    start({"/language", "zh-CN"});
    EXPECT_TRUE(applicationIsChinese());
}

TEST_F(CommandLineTest, ConfiguredChineseNeedsNoOption)
{
    g_recordingHost.languageId = 2052;
    start({});
    EXPECT_TRUE(applicationIsChinese());
}

TEST_F(CommandLineTest, ConfiguredChineseHoldsAgainstAnotherOption)
{
    g_recordingHost.languageId = 2052;
    start({"/language", "en"});
    EXPECT_TRUE(applicationIsChinese());
}

TEST_F(CommandLineTest, ConfiguredChineseNeedsNoReadableOptions)
{
    g_recordingHost.languageId = 2052;
    g_recordingHost.requestedLanguage = QStringLiteral("untouched");
    start({"/language", "zh-CN", "/x"});
    EXPECT_EQ(QString(), g_recordingHost.requestedLanguage);
    EXPECT_TRUE(applicationIsChinese());
}

TEST_F(CommandLineTest, ConfiguredChineseHoldsAgainstAnotherSpelling)
{
    g_recordingHost.languageId = 2052;
    start({"/language", "zh-cn"});
    EXPECT_EQ(QStringLiteral("zh-cn"), g_recordingHost.requestedLanguage);
    EXPECT_TRUE(applicationIsChinese());
}

TEST_F(CommandLineTest, LanguageIdentifierIsComparedWhole)
{
    for (const int identifier : {0x10804, 1028, 2053, -2052}) {
        g_recordingHost.languageId = identifier;
        start({});
        EXPECT_FALSE(applicationIsChinese()) << identifier;
    }
}

TEST_F(CommandLineTest, QtTextsComeFromTheWorkingDirectory)
{
    bringQtCatalogue();
    start({"/language", "zh-CN"});
    EXPECT_EQ(QStringLiteral("取消"), cancel());
}

TEST_F(CommandLineTest, QtsOwnDialogsAreChinese)
{
    bringQtCatalogue();
    start({"/language", "zh-CN"});
    EXPECT_EQ(QStringLiteral("查找范围："), QCoreApplication::translate("QFileDialog", "Look in:"));
}

TEST_F(CommandLineTest, WithoutQtCatalogueOnlyTheApplicationIsChinese)
{
    start({"/language", "zh-CN"});
    EXPECT_TRUE(applicationIsChinese());
    EXPECT_EQ(QStringLiteral("Cancel"), cancel());
}

TEST_F(CommandLineTest, CatalogueThatDoesNotLoadIsInstalledAllTheSame)
{
    start({"/language", "zh-CN"});
    EXPECT_TRUE(qtTranslator.isEmpty());
    EXPECT_TRUE(QCoreApplication::removeTranslator(&qtTranslator));
}

TEST_F(CommandLineTest, OtherLanguagesInstallNothing)
{
    bringQtCatalogue();
    start({"/language", "en"});
    EXPECT_TRUE(appTranslator.isEmpty());
    EXPECT_TRUE(qtTranslator.isEmpty());
    EXPECT_FALSE(QCoreApplication::removeTranslator(&appTranslator));
    EXPECT_FALSE(QCoreApplication::removeTranslator(&qtTranslator));
    EXPECT_EQ(QStringLiteral("Cancel"), cancel());
}

struct PageOption
{
    std::vector<QByteArray> arguments;
    const char* page;
};

TEST(RequestedPage, FollowsTheGrammarOfPairs)
{
    const PageOption rows[] = {{{"/page", "log"}, "log"},
                               {{"/language", "zh-CN", "/page", "files"}, "files"},
                               {{"/page", "log", "/page", "input"}, "input"},
                               {{"/page"}, ""},
                               {{"/page", "log", "/x"}, ""},
                               {{"page", "log"}, ""},
                               {{"/PAGE", "log"}, ""},
                               {{"/x", "/page"}, ""},
                               {{}, ""}};
    for (const PageOption& row : rows) {
        Arguments arguments(row.arguments);
        EXPECT_EQ(requestedPage(arguments.count(), arguments.values()).toStdString(), row.page);
    }
}

TEST(RequestedFile, FollowsTheSameGrammar)
{
    Arguments given({"/open", "/a b.reg", "/page", "log"});
    EXPECT_EQ("/a b.reg", requestedFile(given.count(), given.values()));
    // As a desktop entry starts the application without a file.
    Arguments without({"/open"});
    EXPECT_EQ("", requestedFile(without.count(), without.values()));
}

} // namespace
