#include "tests/app/startup/Application.h"

#include <gtest/gtest.h>

namespace {

struct Line
{
    QStringList arguments;
    const char* page;
};

class PageOption : public testing::TestWithParam<Line>
{
};

TEST_P(PageOption, ChoosesThePageThatTheWindowOpensOn)
{
    Application application;
    ASSERT_TRUE(application.run(GetParam().arguments));
    EXPECT_EQ(application.value("page").toStdString(), GetParam().page);
}

// The page's place, counted from 0, and the name of the checked button.
INSTANTIATE_TEST_SUITE_P(
    Rows, PageOption,
    testing::Values(Line{{}, "0 registry"}, Line{{"/page", "profiles"}, "1 profiles"},
                    Line{{"/page", "log"}, "7 log"}, Line{{"/page", "none"}, "0 registry"},
                    Line{{"/language", "zh-CN", "/page", "fonts"}, "3 fonts"},
                    Line{{"/open", "/nowhere/a.ini"}, "1 profiles"}, Line{{"/open"}, "0 registry"},
                    Line{{"/page", "-style", "fusion", "input"}, "5 input"}));

} // namespace
