#include "tests/app/pages/WindowProbe.h"

#include <gtest/gtest.h>

namespace {

class PageLayoutTest : public testing::TestWithParam<const char*>
{
};

TEST_P(PageLayoutTest, ShowsAllOfItsEnglishTexts)
{
    const WindowProbe probe(GetParam());
    EXPECT_EQ(probe.clipped().join(QLatin1String(" | ")).toStdString(), "");
}

TEST_P(PageLayoutTest, ShowsAllOfItsChineseTexts)
{
    const WindowProbe probe(GetParam(), WindowProbe::Language::Chinese);
    EXPECT_EQ(probe.clipped().join(QLatin1String(" | ")).toStdString(), "");
}

TEST_P(PageLayoutTest, NamesEveryControl)
{
    const WindowProbe probe(GetParam());
    EXPECT_EQ(probe.nameless().join(QLatin1String(" | ")).toStdString(), "");
}

TEST_P(PageLayoutTest, LetsTheKeyboardReachEveryControl)
{
    const WindowProbe probe(GetParam());
    EXPECT_EQ(probe.unreachable().join(QLatin1String(" | ")).toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Pages, PageLayoutTest, testing::Values("profiles", "files", "fonts"),
                         [](const auto& page) { return std::string(page.param); });

} // namespace
