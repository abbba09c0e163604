#pragma once

#include "tests/support/StyleInUse.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

inline void PrintTo(const StyleName& style, std::ostream* out)
{
    *out << StyleInUse::nameOf(style);
}

/// A test that is run in each style of `stylesInUse`. The build defines QUAYSIDE_CROSS_BUILT: the
/// styles are installed for this machine's own processor alone.
class TestInStyle : public testing::TestWithParam<StyleName>
{
protected:
    void SetUp() override
    {
        if (QUAYSIDE_CROSS_BUILT && !m_style.isThere())
            GTEST_SKIP() << "not installed for that processor: " << GetParam().key;
        ASSERT_TRUE(m_style.isThere()) << "not installed: " << GetParam().key;
    }

    const StyleInUse m_style{GetParam()};
};

inline std::string nameOfStyle(const testing::TestParamInfo<StyleName>& row)
{
    return StyleInUse::nameOf(row.param);
}
