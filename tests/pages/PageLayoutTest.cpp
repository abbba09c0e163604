#include "tests/pages/PageNames.h"
#include "tests/pages/SmallFont.h"
#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"

#include <QTest>

#include <gtest/gtest.h>

namespace {

class PageLayoutTest : public testing::TestWithParam<std::string>
{
    SmallFont m_font;
};

TEST_P(PageLayoutTest, ShowsAllOfItsEnglishTexts)
{
    const WindowProbe probe(GetParam());
    EXPECT_TRUE(waitFor([&probe] { return probe.clipped().isEmpty(); }))
        << probe.clipped().join(QLatin1String(" | ")).toStdString();
}

TEST_P(PageLayoutTest, ShowsAllOfItsChineseTexts)
{
    const WindowProbe probe(GetParam(), WindowProbe::Language::Chinese);
    EXPECT_TRUE(waitFor([&probe] { return probe.clipped().isEmpty(); }))
        << probe.clipped().join(QLatin1String(" | ")).toStdString();
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

INSTANTIATE_TEST_SUITE_P(Pages, PageLayoutTest, testing::ValuesIn(pageNames()),
                         [](const auto& page) { return page.param; });

} // namespace
