#include "tests/pages/WindowProbe.h"
#include "window/ShownText.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

struct Caption
{
    const char* text;
    const char* spoken;
};

class MnemonicTextTest : public testing::TestWithParam<Caption>
{
};

TEST_P(MnemonicTextTest, IsWhatIsReadOut)
{
    EXPECT_EQ(withoutMnemonic(QString::fromUtf8(GetParam().text)).toStdString(), GetParam().spoken);
}

INSTANTIATE_TEST_SUITE_P(Captions, MnemonicTextTest,
                         testing::Values(Caption{"&Section:", "Section"},
                                         Caption{"Thro&ugh:", "Through"},
                                         Caption{"Search", "Search"}, Caption{"节(&S)：", "节"},
                                         Caption{"键 (&K):", "键"},
                                         Caption{"查找(&S)...", "查找..."},
                                         Caption{"Ratio 1:2", "Ratio 1:2"}));

TEST(MnemonicText, NamesTheFieldsOfAProfileInChinese)
{
    const WindowProbe probe("profiles", WindowProbe::Language::Chinese);
    EXPECT_EQ(probe.control<QLineEdit>("section").accessibleName(), QStringLiteral("节"));
}

} // namespace
