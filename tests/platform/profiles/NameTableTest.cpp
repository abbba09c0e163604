#include "platform/profiles/NameTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// The names stand here, as they stand in a file elsewhere.
class NameTableTest : public testing::Test
{
protected:
    // The place at which the name was before, which it now leaves.
    std::uint32_t put(const std::string& name, std::uint32_t hash)
    {
        std::uint32_t& place =
            m_table.place(hash, [&](std::uint32_t other) { return m_names[other] == name; });
        const std::uint32_t before = place;
        place = static_cast<std::uint32_t>(m_names.size());
        m_names.push_back(name);
        return before;
    }

    NameTable m_table;
    std::vector<std::string> m_names;
};

TEST_F(NameTableTest, TellsWhereANameHasComeBefore)
{
    EXPECT_EQ(put("a", 1), NameTable::none);
    EXPECT_EQ(put("b", 2), NameTable::none);
    EXPECT_EQ(put("a", 1), 0U);
    EXPECT_EQ(put("a", 1), 2U);
}

TEST_F(NameTableTest, TellsNamesOfOneHashApart)
{
    EXPECT_EQ(put("a", 7), NameTable::none);
    EXPECT_EQ(put("b", 7), NameTable::none);
    EXPECT_EQ(put("a", 7), 0U);
    EXPECT_EQ(put("b", 7), 1U);
}

TEST_F(NameTableTest, KeepsAllNamesWhenItGrows)
{
    constexpr std::uint32_t many = 10000;
    for (std::uint32_t i = 0; i < many; ++i)
        ASSERT_EQ(put(std::to_string(i), i % 1000), NameTable::none);
    for (std::uint32_t i = 0; i < many; ++i)
        ASSERT_EQ(put(std::to_string(i), i % 1000), i);
}

} // namespace
