#include "inspection/registry/TypingDistance.h"

#include <gtest/gtest.h>

namespace {

struct Row
{
    const char* typed;
    const char* name;
    int distance;
};

class TypingDistanceTest : public testing::TestWithParam<Row>
{
};

TEST_P(TypingDistanceTest, CountsMistakes)
{
    const Row& row = GetParam();
    TypingDistance distance(row.typed);
    EXPECT_EQ(distance.to(row.name), row.distance) << row.typed << ' ' << row.name;
    EXPECT_EQ(distance.to("something far away"), distance.mostMistakes() + 1);
    EXPECT_EQ(distance.to(row.name), row.distance) << "after another name";
}

INSTANTIATE_TEST_SUITE_P(
    OfAllKinds, TypingDistanceTest,
    testing::Values(Row{"Software", "Software", 0}, Row{"software", "SOFTWARE", 0},
                    Row{"Sofware", "Software", 1}, Row{"Softwware", "Software", 1},
                    Row{"Soltware", "Software", 1}, Row{"Sotfware", "Software", 1},
                    Row{"oSftware", "Software", 1}, Row{"Softwaer", "Software", 1},
                    Row{"Sofwar", "Software", 2}, Row{"Sotfwaer", "Software", 2},
                    Row{"xSoftwarex", "Software", 2}, Row{"Sowar", "Software", 2},
                    Row{"Sofwa", "Software", 2}, Row{"Sxxxware", "Software", 3},
                    Row{"abc", "abd", 1}, Row{"abc", "axd", 2}, Row{"ab", "ab", 0},
                    Row{"ab", "ac", 1}, Row{"", "a", 1}, Row{"", "", 0}));

} // namespace
