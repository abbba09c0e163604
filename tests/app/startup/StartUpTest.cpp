#include "tests/app/startup/Application.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

const QString english = QStringLiteral("English");
const QString chinese = QStringLiteral("简体中文");

TEST(StartUp, HandsTheExportedServicesObjectOver)
{
    Application application;
    ASSERT_TRUE(application.run());
    EXPECT_EQ(QStringLiteral("exported"), application.value("services"));
}

TEST(StartUp, ShowsOneWindow)
{
    Application application;
    ASSERT_TRUE(application.run());
    EXPECT_EQ(QStringLiteral("MainWindow"), application.value("class"));
    EXPECT_FALSE(application.value("title").isEmpty());
}

TEST(StartUp, SetsTheHighDpiAttributes)
{
    Application application;
    ASSERT_TRUE(application.run());
    EXPECT_EQ(QStringLiteral("1"), application.value("scaling"));
    EXPECT_EQ(QStringLiteral("1"), application.value("pixmaps"));
}

TEST(StartUp, ReturnsTheStatusOfTheEventLoop)
{
    for (const int status : {0, 1, 42, 255}) {
        Application application;
        application.setEnvironment("HOST_STATUS", QString::number(status));
        ASSERT_TRUE(application.run());
        EXPECT_EQ(status, application.status());
    }
}

TEST(StartUp, EndsWhenTheLastWindowCloses)
{
    Application application;
    application.setEnvironment("HOST_CLOSE_WINDOW", "1");
    application.setEnvironment("HOST_STATUS", "9");
    ASSERT_TRUE(application.run());
    EXPECT_EQ(0, application.status());
}

struct Line
{
    QStringList arguments;
    bool isChinese;
};

class StartUpOptions : public testing::TestWithParam<Line>
{
};

TEST_P(StartUpOptions, AreReadFromWhatQtLeaves)
{
    Application application;
    ASSERT_TRUE(application.run(GetParam().arguments));
    EXPECT_EQ(GetParam().isChinese ? chinese : english, application.value("language"));
}

INSTANTIATE_TEST_SUITE_P(Rows, StartUpOptions,
                         testing::Values(Line{{}, false}, Line{{"/language", "zh-CN"}, true},
                                         Line{{"/language", "zh-cn"}, false},
                                         Line{{"/language"}, false},
                                         Line{{"/language", "zh-CN", "/x"}, false},
                                         Line{{"/x", "y", "/language", "zh-CN"}, true},
                                         Line{{"/language", "en", "/language", "zh-CN"}, true},
                                         Line{{"language", "zh-CN"}, false},
                                         Line{{"/language", "zh-CN", "-reverse"}, true},
                                         Line{{"/language", "-style", "fusion", "zh-CN"}, true}));

// The status line names the language; its text is fixed when the window is made.
TEST(StartUp, MakesTheWindowAfterTheTranslators)
{
    for (const bool isChinese : {true, false}) {
        Application application;
        ASSERT_TRUE(application.run(isChinese ? QStringList{"/language", "zh-CN"} : QStringList()));
        const QStringList labels = application.values("label");
        EXPECT_EQ(isChinese, labels.contains(chinese));
        EXPECT_EQ(!isChinese, labels.contains(english));
    }
}

TEST(StartUp, TellsTheConfigurationLibraryTheLanguage)
{
    Application application;
    ASSERT_TRUE(application.run({"/language", "de"}));
    EXPECT_EQ(QStringLiteral("de"), application.value("init"));
    EXPECT_EQ(1, application.values("create").size());
}

TEST(StartUp, FailingConfigurationIsNotAskedForTheLanguage)
{
    Application application;
    application.setEnvironment("HOST_INIT_RESULT", "1");
    application.setEnvironment("HOST_LANGUAGE", "2052");
    ASSERT_TRUE(application.run());
    EXPECT_EQ(0, application.values("create").size());
    EXPECT_EQ(english, application.value("language"));
}

struct Host
{
    const char* folder;
    const char* option; ///< the value of "/language"; null for no option
    bool isChinese;
    int calls; ///< of functions of configuration, as far as they report
};

std::ostream& operator<<(std::ostream& stream, const Host& host)
{
    return stream << host.folder << ' ' << (host.option ? host.option : "");
}

class StartUpWithout : public testing::TestWithParam<Host>
{
};

TEST_P(StartUpWithout, SomeFunctionsOfConfiguration)
{
    Application application;
    application.setEnvironment("LD_LIBRARY_PATH", GetParam().folder);
    application.setEnvironment("HOST_LANGUAGE", "2052");
    const QString option = GetParam().option;
    ASSERT_TRUE(
        application.run(option.isNull() ? QStringList() : QStringList{"/language", option}));
    EXPECT_EQ(GetParam().isChinese ? chinese : english, application.value("language"));
    EXPECT_EQ(GetParam().calls,
              application.values("init").size() + application.values("create").size());
}

INSTANTIATE_TEST_SUITE_P(Rows, StartUpWithout,
                         testing::Values(Host{QUAYSIDE_HOST_UNCONFIGURED, nullptr, false, 0},
                                         Host{QUAYSIDE_HOST_UNCONFIGURED, "zh-CN", true, 0},
                                         Host{QUAYSIDE_HOST_WITHOUT_REGISTRY, nullptr, true, 1},
                                         Host{QUAYSIDE_HOST_WITHOUT_LANGUAGE, nullptr, false, 2},
                                         Host{QUAYSIDE_HOST_WITHOUT_LANGUAGE, "zh-CN", true, 2}));

TEST(StartUp, ConfiguredChineseNeedsNoOption)
{
    Application application;
    application.bringQtCatalogue();
    application.setEnvironment("HOST_LANGUAGE", "2052");
    ASSERT_TRUE(application.run());
    EXPECT_EQ(chinese, application.value("language"));
    EXPECT_EQ(QStringLiteral("取消"), application.value("cancel"));
}

TEST(StartUp, WithoutQtCatalogueQtStaysEnglish)
{
    Application application;
    ASSERT_TRUE(application.run({"/language", "zh-CN"}));
    EXPECT_EQ(chinese, application.value("language"));
    EXPECT_EQ(QStringLiteral("Cancel"), application.value("cancel"));
}

} // namespace
